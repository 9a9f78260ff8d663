// cserko-help-tour PAGES FOLDER: opens every help page of a folder in the window of the viewer, looks at it from top to
// bottom on the screen of the environment, and leaves the pictures in the other folder. Exit status 1 and one line for
// each fault where something is wrong.
#include "platform/qt/theme.h"
#include "tests/tour/camera.h"
#include "viewer/help_window.h"
#include "viewer/screen_scale.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace {

using cserko::HelpBrowser;
using cserko::HelpWindow;

constexpr int patience = 5000;         // ms until a window counts as never shown
constexpr int faintest_page = 150;     // contrast, 0 to 255
constexpr int narrowest_picture = 100; // pixels; the placeholder is smaller
constexpr double most_lines = 50;      // a screen that holds more shows them too small to read
constexpr int most_screens = 20;       // of one page

class Look {
 public:
  Look(HelpWindow& window, QString page, const QString& folder)
      : window_(window), browser_(window.browser()), page_(std::move(page)), folder_(folder) {}

  void all() {
    if (!await_window()) return fault("the window does not come up");
    inspect_text();
    inspect_pictures();
    QScrollBar& bar = *browser_.verticalScrollBar();
    for (int screen = 1;; ++screen) {
      photograph(screen);
      if (bar.value() == bar.maximum()) break;
      if (screen == most_screens) return fault("the page does not end");
      bar.setValue(bar.value() + bar.pageStep());
    }
  }

  int pictures() const { return pictures_; }
  const std::vector<QString>& faults() const { return faults_; }

 private:
  void fault(const QString& what) { faults_.push_back(page_ + ": " + what); }

  bool await_window() {
    QElapsedTimer waiting;
    waiting.start();
    const auto there = [this] {
      const QWindow* handle = window_.windowHandle();
      return handle != nullptr && handle->isExposed() && window_.isActiveWindow() &&
             window_.frameGeometry().width() >= window_.screen()->availableGeometry().width();
    };
    while (!there() && waiting.elapsed() < patience)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    return there();
  }

  void inspect_text() {
    const QString text = browser_.toPlainText();
    if (text.contains(apology())) fault("shows the apology for a page that cannot be shown");
    if (text.contains(QChar(0xFFFD))) fault("has a character that could not be read");
    if (text.size() < 200) fault("says next to nothing");
    if (browser_.horizontalScrollBar()->maximum() > 0) fault("is wider than the window");
    const double lines = window_.screen()->size().height() / QFontMetricsF(browser_.font()).height();
    if (lines > most_lines) fault("has letters too small for the screen: " + QString::number(lines) + " lines");
  }

  // The heading of the sentence that the viewer shows instead of a broken page.
  static QString apology() {
    const QString html = HelpBrowser::apology("x", "y");
    const qsizetype from = html.indexOf("<h2>") + 4;
    return html.mid(from, html.indexOf("</h2>") - from);
  }

  void inspect_pictures() {
    int found = 0;
    for (QTextBlock block = browser_.document()->begin(); block.isValid(); block = block.next()) {
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextImageFormat format = at.fragment().charFormat().toImageFormat();
        if (!format.isValid()) continue;
        ++found;
        inspect_picture(format);
      }
    }
    if (found == 0) fault("has no picture");
  }

  void inspect_picture(const QTextImageFormat& format) {
    const QVariant resource = browser_.document()->resource(QTextDocument::ImageResource, QUrl(format.name()));
    const auto image = resource.value<QImage>();
    if (image.isNull() || image.width() < narrowest_picture) return fault("lacks the picture " + format.name());
    const QSize place = (QSizeF(format.width(), format.height()) * image.devicePixelRatio()).toSize();
    if (place != image.size()) fault("stretches the picture " + format.name());
    if (format.width() > browser_.viewport()->width()) fault("has no room for the picture " + format.name());
    if (cserko::tour::contrast(image.convertToFormat(QImage::Format_RGB32), image.rect()) < faintest_page)
      fault("has a pale picture: " + format.name());
  }

  void photograph(int screen) {
    QCoreApplication::processEvents();
    window_.repaint();
    QCoreApplication::processEvents();
    const QImage image = cserko::tour::take_picture(window_);
    if (cserko::tour::contrast(image, image.rect()) < faintest_page) fault("is blank");
    const QString name = QString("help-%1-%2.png").arg(page_.chopped(4).replace(" - ", "-").replace(' ', '-'));
    image.save(folder_ + '/' + name.arg(screen));
    ++pictures_;
  }

  HelpWindow& window_;
  HelpBrowser& browser_;
  QString page_;
  QString folder_;
  int pictures_ = 0;
  std::vector<QString> faults_;
};

} // namespace

int main(int argc, char** argv) {
  cserko::scale_to_screen(argc, argv);
  const QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) {
    std::fputs("usage: cserko-help-tour PAGES FOLDER\n", stderr);
    return 2;
  }
  cserko::theme::apply();
  const QDir pages(arguments[1]);
  const QStringList names = pages.entryList({"*.mht"}, QDir::Files, QDir::Name);
  int pictures = 0;
  std::vector<QString> faults;
  if (names.isEmpty()) faults.push_back("there are no help pages in " + arguments[1]);
  for (const QString& name : names) {
    HelpWindow window;
    window.open(pages.filePath(name));
    window.showMaximized();
    Look look(window, name, arguments[2]);
    look.all();
    pictures += look.pictures();
    faults.insert(faults.end(), look.faults().begin(), look.faults().end());
  }
  for (const QString& fault : faults) std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
  std::printf("%d help pages, %d pictures, %zu faults\n", int(names.size()), pictures, faults.size());
  return faults.empty() ? 0 : 1;
}
