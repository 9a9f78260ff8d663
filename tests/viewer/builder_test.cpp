// The builder of the help pages: from Markdown to the archive that the viewer reads.
#include "data/help/page_archive.h"
#include "tests/viewer/samples.h"
#include "viewer/help_archive.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace cserko::test {
namespace {

class Builder : public testing::Test {
 protected:
  HtmlPage html(const QByteArray& markdown) {
    return page_html({"a.md", folder.path(), "első lap.mht", QString::fromUtf8(markdown)},
                     {{"a.md", "első lap.mht"}, {"b.md", "másik  lap.mht"}});
  }
  void expect_in_body(const QByteArray& markdown, const QString& expected) {
    const QString page = html("# Cím\n\n" + markdown).html;
    const qsizetype body = page.indexOf("</h1>\n") + 6;
    EXPECT_EQ(page.mid(body, page.indexOf("</body>") - body), expected);
  }
  PageSource source(const QByteArray& text) { return read_page(put_file(folder.path(), "x.md", text)); }

  QTemporaryDir folder;
};

TEST_F(Builder, ReadsTheNameOfThePageFromTheFirstLine) {
  const PageSource page = source("<!-- page: Cserkó - A feladat.mht -->\r\n# Cím\r\n");
  EXPECT_EQ(page.name, "Cserkó - A feladat.mht");
  EXPECT_EQ(page.file, "x.md");
  EXPECT_EQ(page.markdown, "# Cím\n");
}

TEST_F(Builder, RefusesASourceThatNamesNoPage) {
  for (const char* text : {"", "# Cím\n", "<!-- page: -->\n", "<!-- page: a.html -->\n", "<!-- page: ../a.mht -->\n"})
    EXPECT_THROW(source(text), HelpError) << text;
  EXPECT_THROW(read_page(folder.filePath("none.md")), HelpError);
}

TEST_F(Builder, RefusesTwoSourcesOfOnePage) {
  EXPECT_THROW(page_names({{"a.md", "", "Lap.mht", ""}, {"b.md", "", "lap.mht", ""}}), HelpError);
  EXPECT_EQ(page_names({{"a.md", "", "a.mht", ""}, {"b.md", "", "b.mht", ""}}).value("b.md"), "b.mht");
}

TEST_F(Builder, WritesParagraphsListsAndTables) {
  expect_in_body("egy **két** *há* `Tab`\n\n## Felnőtteknek\n\nnégy\nöt", //
                 "<p class=\"child\">egy <b>két</b> <i>há</i> <code>&nbsp;Tab&nbsp;</code></p>\n"
                 "<h2>Felnőtteknek</h2>\n<p>négy öt</p>\n");
  expect_in_body("- a\n- b < c\n\n1. d\n", "<ul>\n<li>a</li>\n<li>b &lt; c</li>\n</ul>\n<ol>\n<li>d</li>\n</ol>\n");
  const QString table = html("# Cím\n\n| A | B |\n|---|---|\n| c | **d** |\n").html;
  EXPECT_TRUE(table.contains("<tr><th>A</th><th>B</th></tr>\n<tr><td>c</td><td><b>d</b></td></tr>"))
      << table.toStdString();
}

TEST_F(Builder, TurnsLinksToSourcesIntoLinksToPages) {
  expect_in_body("[ide](b.md)", "<p class=\"child\"><a href=\"m%C3%A1sik%20%20lap.mht\">ide</a></p>\n");
}

TEST_F(Builder, RefusesLinksThatLeadNowhereOrOut) {
  EXPECT_THROW(html("# Cím\n\n[x](c.md)"), HelpError);
  EXPECT_THROW(html("# Cím\n\n[x](https://example.com/)"), HelpError);
}

TEST_F(Builder, PutsPicturesInTheMiddleWithTheirSizeAndMeaning) {
  put_file(folder.path(), "p.png", png(30, 20, Qt::red));
  expect_in_body("![egy \"kép\"](p.png)", "<p class=\"picture\" align=\"center\"><img src=\"p.png\" width=\"30\" "
                                          "height=\"20\" alt=\"egy &quot;kép&quot;\"></p>\n");
  EXPECT_EQ(html("# Cím\n\n![a](p.png)\n\n![b](p.png)\n").pictures, QStringList("p.png"));
}

TEST_F(Builder, RefusesPagesThatCannotBeShown) {
  EXPECT_THROW(html("no heading"), HelpError);
  EXPECT_THROW(html("# a\n\n# b"), HelpError);
  EXPECT_THROW(html("# a\n\n- b\n  - c\n"), HelpError);
}

TEST_F(Builder, BuildsAPageWhosePictureIsStillMissingAndSaysSo) {
  expect_in_body("![egy <kép>](none.png)",
                 "<p class=\"picture\" align=\"center\">[Hiányzó kép: egy &lt;kép&gt;]</p>\n");
  EXPECT_EQ(html("# a\n\n![x](none.png)").missing, QStringList("none.png"));
  EXPECT_TRUE(html("# a\n\n![x](none.png)").pictures.isEmpty());
}

TEST_F(Builder, RefusesPicturesThatAreTooLarge) {
  put_file(folder.path(), "wide.png", png(widest_picture + 1, 2, Qt::red));
  const PageSource page{"a.md", folder.path(), "a.mht", "# Cím\n\n![x](wide.png)"};
  EXPECT_THROW(page_archive(page, page_html(page, {})), HelpError);
}

TEST_F(Builder, TheViewerReadsWhatTheBuilderWrites) {
  const QByteArray picture = png(30, 20, Qt::red);
  put_file(folder.path(), "p.png", picture);
  const PageSource page{"a.md", folder.path(), "első lap.mht",
                        "# Árvíztűrő = tükörfúrógép\n\n" + QString("őű= ").repeated(100) + "\n\n![x](p.png)"};
  const HtmlPage written = page_html(page, {});
  const QByteArray bytes = page_archive(page, written);
  const HelpArchive archive = HelpArchive::read(bytes);
  EXPECT_EQ(archive.page().remove('\r'), written.html);
  ASSERT_NE(archive.find("p.png"), nullptr);
  EXPECT_EQ(archive.find("p.png")->content, picture);
  for (const QByteArray& line : bytes.split('\n')) {
    EXPECT_LE(line.size(), 78 + 1);
    for (const char c : line) EXPECT_TRUE(c >= ' ' || c == '\r') << line.toStdString();
  }
}

TEST_F(Builder, GivesTheSameBytesEachTime) {
  put_file(folder.path(), "p.png", png(30, 20, Qt::red));
  const PageSource page{"a.md", folder.path(), "a.mht", "# Cím\n\n![x](p.png)\n\n| a |\n|---|\n| b |\n"};
  const QByteArray first = page_archive(page, page_html(page, {}));
  EXPECT_EQ(page_archive(page, page_html(page, {})), first);
  EXPECT_FALSE(first.contains("Date:"));
}

} // namespace
} // namespace cserko::test
