// cserko-x11-draw: somebody draws in the real program by events of the X server alone: with each tool, fills, takes
// back, saves, opens, makes a colouring page and colours it, prints to a PDF file in which the drawing is found again,
// and lets the time of the reward pass. Exit status 1 and a line that says why where it goes otherwise than it should.
#include "core/frm_főablak.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "feedback/frm_rajz.h"
#include "feedback/frm_színezőmegnyitás.h"
#include "feedback/message_panels.h"
#include "platform/bitmap.h"
#include "platform/qt/qt_images.h"
#include "tests/drawing_qt/pdf_images.h"
#include "tests/x11/steps.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <cstdio>

namespace {

using namespace cserko;

constexpr int period_key = 190;
constexpr int red_swatch = 5;
constexpr int blue_swatch = 13;

class Painter : public Steps {
 public:
  Painter(Session& session, WatchedPlatform& platform, QString home)
      : Steps(platform), session_(session), home_(std::move(home)) {
    plan();
  }

 private:
  frm_rajz& board() { return session_.window<frm_rajz>(); }
  PixelImage seen() { return board().board().image(); }
  Point at(double across, double down) { return {board().kép.Width * across, board().kép.Height * down}; }
  Color color_at(double across, double down) { return board().board().color_at(at(across, down)); }
  Color swatch(int index) { return board().szín[index].BackColor; }

  static bool file_dialog() {
    const auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return dialog != nullptr && dialog->isVisible() && dialog->isActiveWindow() && dialog->focusWidget() != nullptr;
  }

  void on_board(const std::string& what, std::function<void()> deed) { in(u"frm_rajz", what, std::move(deed)); }
  /// Types a file name into the dialog at the front.
  void type_name(const std::string& name) {
    then("type " + name, file_dialog, [this, name] {
      for (const char letter : name) hand().key(letter == '.' ? period_key : letter - 'a' + 'A', shift::none);
      hand().key(key::enter, shift::none);
    });
  }

  void plan() {
    choose(u"frm_főablak", u"mnu_jutalomjáték", u"mnu_jutalom_rajz");
    draw_with_tools();
    save_and_open();
    make_a_page();
    print();
    let_time_pass();
  }

  void draw_with_tools() {
    on_board("pen", [this] { hand().draw(board().kép, {at(0.1, 0.1), at(0.3, 0.1), at(0.3, 0.3), at(0.12, 0.28)}); });
    on_board("look at the stroke", [this] {
      expect(color_at(0.2, 0.1) == black && color_at(0.3, 0.2) == black, "the pen does not draw");
      hand().click(board().cmd_művelet[frm_rajz::rectangle]);
      hand().draw(board().kép, {at(0.4, 0.2), at(0.5, 0.5), at(0.8, 0.8)});
    });
    on_board("look at the rectangle", [this] {
      expect(color_at(0.4, 0.5) == black && color_at(0.6, 0.8) == black, "no rectangle");
      hand().click(board().cmd_művelet[frm_rajz::straight_line]);
      hand().draw(board().kép, {at(0.4, 0.5), at(0.6, 0.5), at(0.8, 0.5)});
    });
    on_board("look at the line", [this] {
      expect(color_at(0.6, 0.5) == black, "no line");
      hand().click(board().cmd_művelet[frm_rajz::fill]);
      hand().click(board().szín[red_swatch]);
      hand().draw(board().kép, {at(0.6, 0.35)});
    });
    on_board("look at the fill", [this] {
      expect(color_at(0.6, 0.35) == swatch(red_swatch) && color_at(0.45, 0.3) == swatch(red_swatch), "not filled");
      expect(color_at(0.6, 0.65) == white, "the fill has passed the line");
      hand().click(board().cmd_művelet[frm_rajz::eraser]);
      hand().draw(board().kép, {at(0.5, 0.35), at(0.55, 0.35)});
    });
    on_board("look at what is wiped", [this] {
      expect(color_at(0.52, 0.35) == white, "not wiped");
      hand().click(board().cmd_undo);
    });
    on_board("look at what is back", [this] {
      expect(color_at(0.52, 0.35) == swatch(red_swatch), "not taken back");
      drawing_ = seen();
    });
  }

  PixelImage file(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return read_bitmap(file.readAll().toStdString()).value_or(PixelImage{});
  }

  void save_and_open() {
    on_board("save", [this] { hand().key('S', shift::control); });
    type_name("kep");
    on_board("clear", [this] {
      expect(file(home_ + "/kep.bmp") == drawing_, "the saved file is not the drawing");
      hand().click(board().cmd_törlés);
    });
    on_board("open", [this] {
      expect(is_blank(seen()), "not cleared");
      hand().click(board().cmd_megnyit);
    });
    type_name("kep.bmp");
    on_board("look at what was opened", [this] { expect(seen() == drawing_, "not opened as it was"); });
  }

  void make_a_page() {
    on_board("make a page", [this] { hand().click(board().Command1); });
    on_board("open the pages", [this] {
      expect(file(home_ + "/user/cserko/kifest/0.kif") == drawing_, "no page was made");
      hand().click(board().cmd_színező);
    });
    in(u"frm_színezőmegnyitás", "choose the own page", [this] {
      hand().key(key::end, shift::none);
      hand().key(key::enter, shift::none);
    });
    on_board("colour it", [this] {
      expect(seen() == drawing_, "the page is not shown");
      expect(board().chk_vonalnem.ticked(), "black is not protected");
      hand().click(board().cmd_művelet[frm_rajz::fill]);
      hand().click(board().szín[blue_swatch]);
      hand().draw(board().kép, {at(0.6, 0.65)});
    });
    on_board("try to colour black", [this] {
      expect(color_at(0.6, 0.65) == swatch(blue_swatch), "the page is not coloured");
      drawing_ = seen();
      hand().draw(board().kép, {at(0.6, 0.5)});
    });
    on_board("look at black", [this] { expect(seen() == drawing_, "black was coloured"); });
  }

  void print() {
    on_board("print", [this] { hand().click(board().cmd_nyomtat); });
    in(u"szövegüzenet", "no printer", [this] { hand().click(session_.window<szövegüzenet>().Command1); });
    type_name("nyomat");
    in(u"frm_szövegüzenet", "printing", [this] {
      QFile pdf(home_ + "/nyomat.pdf");
      expect(pdf.open(QIODevice::ReadOnly), "no PDF file");
      const QList<QImage> images = test::pdf_images(pdf.readAll());
      expect(images.size() == 1 && from_qt(images[0]) == drawing_, "the drawing is not in the PDF file");
      hand().click(session_.window<frm_szövegüzenet>().cmd_ok);
    });
  }

  void let_time_pass() {
    on_board("let the time pass", [this] {
      board().Timer2.Enabled = true;
      board().Timer2.Interval = 300;
    });
    in(u"frm_szövegüzenet", "back to the letters", [this] {
      expect(board().percek >= 2, "too early");
      hand().click(session_.window<frm_szövegüzenet>().cmd_ok);
    });
    in(u"frm_főablak", "the end", [this] {
      expect(!session_.loaded<frm_rajz>(), "the drawing board is still there");
      expect(file(home_ + "/user/cserko/temp.bmp") == drawing_, "the work file is not the drawing");
    });
  }

  Session& session_;
  QString home_;
  PixelImage drawing_;
};

} // namespace

int main(int argc, char** argv) {
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("CSERKO_USER_DIR", home.filePath("user").toUtf8());
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  WatchedPlatform platform;
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  const Painter painter(session, platform, home.path());
  session.Main();
  if (!painter.done()) std::fprintf(stderr, "%s\n", painter.trouble().c_str());
  return painter.done() ? 0 : 1;
}
