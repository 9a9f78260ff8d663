// The viewer's window: pages, links, keys, and what it must not do.
#include "tests/viewer/link_catcher.h"
#include "tests/viewer/reader.h"
#include "tests/viewer/samples.h"

#include <QAction>
#include <QApplication>
#include <QScrollBar>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTextFrame>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace cserko::test {
namespace {

class Viewer : public testing::Test {
 protected:
  Viewer() { window.resize(900, 700); }

  QString put(const QString& name, const QByteArray& bytes) { return put_file(folder.path(), name, bytes); }
  void open(const QString& name) { window.open(folder.filePath(name)); }
  void show() {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  QString text() { return window.browser().toPlainText(); }
  double margin() { return window.browser().document()->rootFrame()->frameFormat().leftMargin(); }
  QAction* action(const QString& name) {
    for (QAction* entry : window.findChildren<QAction*>()) {
      if (entry->text() == name) return entry;
    }
    return nullptr;
  }
  QColor color_of(const QString& picture) {
    return window.browser()
        .document()
        ->resource(QTextDocument::ImageResource, QUrl(picture))
        .value<QImage>()
        .pixelColor(0, 0);
  }

  QTemporaryDir folder;
  HelpWindow window;
};

TEST_F(Viewer, ShowsAPageWithItsTitle) {
  put("a.mht", page_of("<title>Szótagoló</title><p>őszi űrhajó</p>"));
  open("a.mht");
  EXPECT_EQ(text(), "őszi űrhajó");
  EXPECT_EQ(window.windowTitle(), "Súgó – Szótagoló");
}

TEST_F(Viewer, ShowsThePicturesOfTheArchive) {
  put("a.mht", multipart("xxx", {{"Content-Type: text/html", "<img src=\"pictures/a.png\"><img src=\"cid:b\">"},
                                 picture_part("pictures/a.png", png(3, 2, Qt::red)),
                                 {"Content-Type: image/png\nContent-Transfer-Encoding: base64\nContent-ID: <b>",
                                  png(5, 4, Qt::blue).toBase64()}}));
  open("a.mht");
  const auto shown = pictures(window.browser());
  ASSERT_EQ(shown.size(), 2);
  EXPECT_EQ(shown[0].image.size(), QSize(3, 2));
  EXPECT_EQ(shown[0].image.pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(shown[1].image.size(), QSize(5, 4));
}

TEST_F(Viewer, EachPageHasItsOwnPicturesThoughTheirNamesAreTheSame) {
  const SamplePart page{"Content-Type: text/html", "<img src=\"a.png\">"};
  put("a.mht", multipart("xxx", {page, picture_part("a.png", png(2, 2, Qt::red))}));
  put("b.mht", multipart("xxx", {page, picture_part("a.png", png(2, 2, Qt::green))}));
  show();
  open("a.mht");
  EXPECT_EQ(color_of("a.png"), QColor(Qt::red));
  open("b.mht");
  EXPECT_EQ(color_of("a.png"), QColor(Qt::green));
  window.browser().backward();
  EXPECT_EQ(color_of("a.png"), QColor(Qt::red));
}

TEST_F(Viewer, FollowsLinksBetweenPagesAndGoesBack) {
  put("első  lap.mht", page_of("<p>one <a href=\"m%C3%A1sik%20lap.mht\">to the other</a></p>"));
  put("másik lap.mht", page_of("<p>two</p>"));
  open("első  lap.mht");
  show();
  QAction* back = action("Vissza");
  ASSERT_NE(back, nullptr);
  EXPECT_FALSE(back->isEnabled());
  ASSERT_TRUE(click_link(window.browser(), "m%C3%A1sik%20lap.mht"));
  EXPECT_EQ(text(), "two");
  EXPECT_TRUE(back->isEnabled());
  QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(text(), "one to the other");
  EXPECT_FALSE(back->isEnabled());
}

TEST_F(Viewer, SaysThatAPageIsMissing) {
  open("nincs ilyen.mht");
  EXPECT_TRUE(text().contains("Ezt a súgóoldalt nem tudom megmutatni.")) << text().toStdString();
  EXPECT_TRUE(text().contains("nincs meg"));
  EXPECT_TRUE(text().contains("nincs ilyen.mht"));
  EXPECT_EQ(window.windowTitle(), "Súgó");
}

TEST_F(Viewer, SaysSoWithoutAnyPage) {
  window.open("");
  EXPECT_TRUE(text().contains("Ezt a súgóoldalt nem tudom megmutatni.")) << text().toStdString();
}

TEST_F(Viewer, SaysThatAPageIsBroken) {
  put("a.mht", "<p>no archive</p>");
  open("a.mht");
  EXPECT_TRUE(text().contains("sérült")) << text().toStdString();
}

TEST_F(Viewer, ShowsTheNameOfAMissingPageAsText) {
  open("<img src=x>.mht");
  EXPECT_TRUE(text().contains("<img src=x>.mht")) << text().toStdString();
}

TEST_F(Viewer, GoesBackFromAPageThatIsMissing) {
  put("a.mht", page_of("<p>one <a href=\"b.mht\">gone</a></p>"));
  open("a.mht");
  show();
  ASSERT_TRUE(click_link(window.browser(), "b.mht"));
  EXPECT_TRUE(text().contains("nem tudom megmutatni"));
  window.browser().backward();
  EXPECT_EQ(text(), "one gone");
}

TEST_F(Viewer, FetchesNothingFromElsewhere) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  const QByteArray host = "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/";
  put("a.mht", page_of("<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"" + host +
                       "a.css\"></head><body background=\"" + host + "b.png\"><p style=\"background-image: url(" +
                       host + "c.png)\">x</p><p><img src=\"" + host + "d.png\"> <a href=\"" + host +
                       "e.mht\">link</a></p></body></html>"));
  open("a.mht");
  show();
  window.grab();
  LinkCatcher catcher;
  ASSERT_TRUE(click_link(window.browser(), QString::fromLatin1(host + "e.mht")));
  EXPECT_FALSE(server.waitForNewConnection(500));
  EXPECT_FALSE(server.hasPendingConnections());
  EXPECT_EQ(catcher.urls, QStringList());
  EXPECT_TRUE(text().startsWith("x"));
}

TEST_F(Viewer, OpensNoLinkThatLeadsOut) {
  put("a.mht", page_of("<p>x <a href=\"https://example.com/\">link a</a> <a href=\"mailto:x@example.com\">link b</a> "
                       "<a href=\"file://server/share/c.mht\">link c</a> <a href=\"javascript:x\">link d</a></p>"));
  open("a.mht");
  show();
  LinkCatcher catcher;
  const QUrl here = window.browser().source();
  ASSERT_EQ(links(window.browser()).size(), 4);
  for (const QString& link : links(window.browser())) {
    ASSERT_TRUE(click_link(window.browser(), link));
    EXPECT_EQ(window.browser().source(), here) << link.toStdString();
  }
  EXPECT_EQ(catcher.urls, QStringList());
}

TEST_F(Viewer, LooksForNoPictureOutsideTheArchive) {
  const QString outside = put("outside.png", png(7, 7, Qt::red));
  const QString url = QUrl::fromLocalFile(outside).toString();
  put("a.mht",
      page_of(("<p>x</p><img src=\"" + url + "\"><img src=\"outside.png\"><img src=\"" + outside + "\">").toUtf8()));
  open("a.mht");
  show();
  const QImage shown = window.grab().toImage();
  for (const ShownPicture& picture : pictures(window.browser())) EXPECT_NE(picture.image.size(), QSize(7, 7));
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) ASSERT_NE(shown.pixelColor(x, y), QColor(Qt::red));
  }
}

TEST_F(Viewer, TakesStylesFromTheArchiveAlone) {
  put("style.css", "p { font-weight: bold; }");
  put("a.mht", page_of("<html><head><link rel=\"stylesheet\" type=\"text/css\" "
                       "href=\"style.css\"></head><body><p>x</p></body></html>"));
  put("b.mht",
      multipart("xxx", {{"Content-Type: text/html",
                         "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\">"
                         "</head><body><p>x</p></body></html>"},
                        {"Content-Type: text/css\nContent-Location: style.css", "p { font-style: italic; }"}}));
  const auto format = [this] { return window.browser().document()->begin().begin().fragment().charFormat(); };
  open("a.mht");
  EXPECT_NE(format().fontWeight(), int(QFont::Bold));
  open("b.mht");
  EXPECT_TRUE(format().fontItalic());
}

TEST_F(Viewer, EscapeCloses) {
  put("a.mht", page_of("<p>x</p>"));
  open("a.mht");
  show();
  QTest::keyClick(&window.browser(), Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(Viewer, ZoomsByKeysAndWheelWithinBounds) {
  put("a.mht", page_of("<h1>cím</h1><p>szöveg</p>"));
  open("a.mht");
  show();
  const double usual = window.browser().font().pointSizeF();
  const double height = window.browser().document()->size().height();
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(window.browser().font().pointSizeF(), usual + 1);
  EXPECT_GT(window.browser().document()->size().height(), height);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window.browser().font().pointSizeF(), usual);
  const QPointF middle = window.browser().viewport()->rect().center();
  QWheelEvent wheel(middle, window.browser().viewport()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(window.browser().viewport(), &wheel);
  EXPECT_EQ(window.browser().zoom_steps(), 1);
  EXPECT_EQ(window.browser().font().pointSizeF(), usual + 1);
  window.browser().zoom(1000);
  EXPECT_EQ(window.browser().font().pointSizeF(), usual + window.browser().zoom_steps());
  EXPECT_LE(window.browser().zoom_steps(), 20);
  window.browser().zoom(-1000);
  EXPECT_GE(window.browser().font().pointSizeF(), 6);
}

TEST_F(Viewer, KeepsTheZoomFromPageToPage) {
  put("a.mht", page_of("<p>x</p>"));
  put("b.mht", page_of("<p>y</p>"));
  open("a.mht");
  window.browser().zoom(4);
  const double size = window.browser().font().pointSizeF();
  open("b.mht");
  EXPECT_EQ(window.browser().font().pointSizeF(), size);
  EXPECT_EQ(window.browser().document()->defaultFont().pointSizeF(), size);
}

TEST_F(Viewer, KeepsLinesShortInAWideWindow) {
  put("a.mht", page_of("<p>" + QByteArray("szó ").repeated(1000) + "</p>"));
  open("a.mht");
  window.resize(2000, 900);
  show();
  const double column = window.browser().viewport()->width() - 2 * margin();
  EXPECT_GE(column, 640);
  EXPECT_LT(column, 1000);
  window.resize(640, 480);
  QApplication::processEvents();
  EXPECT_EQ(window.browser().horizontalScrollBar()->maximum(), 0);
}

TEST_F(Viewer, ScrollsInThePageByItsKeys) {
  put("a.mht", page_of(QByteArray("<p>sor</p>").repeated(200)));
  open("a.mht");
  show();
  QTest::keyClick(&window.browser(), Qt::Key_PageDown);
  EXPECT_GT(window.browser().verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace cserko::test
