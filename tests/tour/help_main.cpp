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
#include <QTemporaryDir>
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
      photograph(QString::number(screen));
      if (bar.value() == bar.maximum()) break;
      if (screen == most_screens) return fault("the page does not end");
      bar.setValue(bar.value() + bar.pageStep());
    }
  }

  /// The page as it stands, with letters of the largest size.
  void with_largest_letters() {
    if (!await_window()) return fault("the window does not come up");
    for (int steps = browser_.zoom_steps() - 1; steps != browser_.zoom_steps();) {
      steps = browser_.zoom_steps();
      browser_.zoom(1);
    }
    if (browser_.horizontalScrollBar()->maximum() > 0) fault("is wider than the window in the largest letters");
    photograph("largest-letters");
  }

  /// The page, reached from another one.
  void after_another() {
    if (!await_window()) return fault("the window does not come up");
    if (!browser_.isBackwardAvailable()) fault("leads to no earlier page");
    photograph("way-back");
  }

  /// The page, whose pictures are not in it.
  void without_pictures() {
    if (!await_window()) return fault("the window does not come up");
    photograph("missing-picture");
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

  void photograph(const QString& view) {
    QCoreApplication::processEvents();
    window_.repaint();
    QCoreApplication::processEvents();
    // The frame of a window that fills the screen may lie beyond it, where there is nothing to photograph.
    QScreen& screen = *window_.screen();
    const QImage image = cserko::tour::take_picture(screen, window_.frameGeometry().intersected(screen.geometry()));
    if (cserko::tour::contrast(image, image.rect()) < faintest_page) fault("is blank");
    const QString name = QString("help-%1-%2.png").arg(page_.chopped(4).replace(" - ", "-").replace(' ', '-'));
    image.save(folder_ + '/' + name.arg(view));
    ++pictures_;
  }

  HelpWindow& window_;
  HelpBrowser& browser_;
  QString page_;
  QString folder_;
  int pictures_ = 0;
  std::vector<QString> faults_;
};

// The page as a file of its own, without the pictures that it shows.
QString write_bare_page(const QString& page, const QString& folder) {
  QFile from(page);
  QFile to(folder + "/bare.mht");
  if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) return {};
  to.write("MIME-Version: 1.0\r\nContent-Type: multipart/related; boundary=\"bare\"\r\n\r\n--bare\r\n"
           "Content-Type: text/html; charset=utf-8\r\n\r\n");
  to.write(cserko::HelpArchive::read(from.readAll()).page().toUtf8());
  to.write("\r\n--bare--\r\n");
  return to.fileName();
}

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
  const auto visit = [&](const QString& name, const QStringList& opened, void (Look::*deed)()) {
    HelpWindow window;
    for (const QString& page : opened) window.open(page);
    window.showMaximized();
    Look look(window, name, arguments[2]);
    (look.*deed)();
    pictures += look.pictures();
    faults.insert(faults.end(), look.faults().begin(), look.faults().end());
  };
  for (const QString& name : names) visit(name, {pages.filePath(name)}, &Look::all);
  if (!names.isEmpty()) {
    const QString first = pages.filePath(names.first());
    const QString last = pages.filePath(names.last());
    visit(names.last(), {first, last}, &Look::after_another);
    visit(names.first(), {first}, &Look::with_largest_letters);
    const QTemporaryDir bare;
    visit(names.first(), {write_bare_page(first, bare.path())}, &Look::without_pictures);
  }
  for (const QString& fault : faults) std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
  std::printf("%d help pages, %d pictures, %zu faults\n", int(names.size()), pictures, faults.size());
  return faults.empty() ? 0 : 1;
}
