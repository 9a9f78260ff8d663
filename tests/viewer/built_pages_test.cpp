// Every help page of the built pack, as the viewer shows it.
#include "data/help/page_html.h"
#include "tests/viewer/reader.h"
#include "tests/viewer/samples.h"

#include <QDir>
#include <QSet>
#include <gtest/gtest.h>

namespace cserko::test {
namespace {

const QDir& pages() {
  static const QDir folder(QString(PACK_DIR) + "/cserko/help");
  return folder;
}

QStringList all_pages() { return pages().entryList({"*.mht"}, QDir::Files, QDir::Name); }

TEST(BuiltPages, OpenWithTitleTextAndPictures) {
  ASSERT_GE(all_pages().size(), 11);
  for (const QString& name : all_pages()) {
    SCOPED_TRACE(name.toStdString());
    HelpWindow window;
    window.open(pages().filePath(name));
    EXPECT_TRUE(window.windowTitle().startsWith("Súgó – "));
    EXPECT_TRUE(window.browser().toPlainText().contains("Felnőtteknek"));
    EXPECT_FALSE(window.browser().toPlainText().contains(QChar(0xFFFD)));
    EXPECT_FALSE(window.browser().toPlainText().contains(missing_picture)) << "make help-pictures";
    const auto shown = pictures(window.browser());
    EXPECT_GE(shown.size(), 1);
    for (const ShownPicture& picture : shown) {
      EXPECT_EQ(picture.image.size(), picture.place) << picture.name.toStdString();
      EXPECT_GT(picture.image.width(), 100);
    }
  }
}

TEST(BuiltPages, LinkToPagesThatExist) {
  for (const QString& name : all_pages()) {
    HelpWindow window;
    window.open(pages().filePath(name));
    for (const QString& link : links(window.browser())) {
      const QString target = QUrl::fromPercentEncoding(link.toUtf8());
      EXPECT_TRUE(all_pages().contains(target)) << name.toStdString() << " -> " << target.toStdString();
      window.browser().setSource(QUrl(link));
      EXPECT_EQ(window.browser().source(), QUrl::fromLocalFile(pages().absoluteFilePath(target)));
      EXPECT_TRUE(window.windowTitle().startsWith("Súgó – ")) << link.toStdString();
      window.open(pages().filePath(name));
    }
  }
}

TEST(BuiltPages, CanAllBeReachedFromThePageOfTheSuite) {
  QSet<QString> reached{"cserkó súgó.mht"};
  QStringList waiting = reached.values();
  HelpWindow window;
  while (!waiting.isEmpty()) {
    window.open(pages().filePath(waiting.takeFirst()));
    for (const QString& link : links(window.browser())) {
      const QString target = QUrl::fromPercentEncoding(link.toUtf8());
      if (reached.contains(target)) continue;
      reached.insert(target);
      waiting += target;
    }
  }
  const QStringList all = all_pages();
  EXPECT_EQ(reached, QSet<QString>(all.begin(), all.end()));
}

TEST(BuiltPages, FitTheirWindowInWidth) {
  for (const QString& name : all_pages()) {
    HelpWindow window;
    window.resize(800, 600);
    window.open(pages().filePath(name));
    window.show();
    EXPECT_LE(window.browser().document()->size().width(), window.browser().viewport()->width()) << name.toStdString();
  }
}

} // namespace
} // namespace cserko::test
