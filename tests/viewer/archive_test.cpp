// The reader of help archives.
#include "tests/viewer/samples.h"
#include "viewer/help_archive.h"

#include <gtest/gtest.h>

namespace cserko::test {
namespace {

QString page(const QByteArray& bytes) { return HelpArchive::read(bytes).page(); }

QString page_in(const QByteArray& headers, const QByteArray& body) {
  return page(multipart("xxx", {{headers, body}})).trimmed();
}

TEST(HelpArchive, ReadsQuotedPrintable) {
  EXPECT_EQ(page_in("Content-Type: text/html; charset=utf-8\nContent-Transfer-Encoding: quoted-printable",
                    "<p class=3D\"x\">k=C3=A9p =\nkock=c3=a1k</p>"),
            "<p class=\"x\">kép kockák</p>");
}

TEST(HelpArchive, KeepsWhatIsNotQuotedPrintable) {
  EXPECT_EQ(page_in("Content-Type: text/html\nContent-Transfer-Encoding: Quoted-Printable", "a=ZZb 1=1 =C"),
            "a=ZZb 1=1 =C");
}

TEST(HelpArchive, JoinsLinesThatEndInBlanksAfterTheMark) {
  EXPECT_EQ(page_in("Content-Type: text/html\nContent-Transfer-Encoding: quoted-printable", "egy=  \nben"), "egyben");
}

TEST(HelpArchive, ReadsBase64AcrossLines) {
  const QByteArray encoded = QByteArray("<p>ő</p>").toBase64();
  EXPECT_EQ(page_in("Content-Type: text/html; charset=\"utf-8\"\nContent-Transfer-Encoding: BASE64",
                    encoded.left(5) + "\n" + encoded.mid(5)),
            "<p>ő</p>");
}

TEST(HelpArchive, ReadsTheCodePageOfCentralEurope) {
  for (const char* charset : {"windows-1250", "Windows-1250", "cp1250"}) {
    EXPECT_EQ(page_in(QByteArray("Content-Type: text/html; charset=") + charset, "\xF5z \xFBr \xE1 \x84"), "őz űr á „")
        << charset;
  }
}

TEST(HelpArchive, TakesTheCharsetFromThePageWhereTheHeaderNamesNone) {
  EXPECT_EQ(page_in("Content-Type: text/html", "<meta charset=\"windows-1250\">\xF5"),
            "<meta charset=\"windows-1250\">ő");
  EXPECT_EQ(page_in("Content-Type: text/html", "<meta content='text/html; charset=utf-8'>ő"),
            "<meta content='text/html; charset=utf-8'>ő");
}

TEST(HelpArchive, TakesUtf8WhereNobodyNamesACharsetOrAnUnknownOne) {
  EXPECT_EQ(page_in("Content-Type: text/html", "ő"), "ő");
  EXPECT_EQ(page_in("Content-Type: text/html; charset=klingon", "ő"), "ő");
}

TEST(HelpArchive, ReadsFoldedHeadersInAnyCase) {
  EXPECT_EQ(page("content-TYPE: Multipart/Related;\r\n\tBOUNDARY=xxx\r\n\r\n--xxx\r\nContent-type: TEXT/HTML;\r\n "
                 "charset=\"utf-8\"\r\n\r\n<p>x</p>\r\n--xxx--\r\n"),
            "<p>x</p>");
}

TEST(HelpArchive, ReadsPartsWithinParts) {
  const QByteArray inner = "--xxx-inner\nContent-Type: text/plain\n\nplain\n--xxx-inner\nContent-Type: text/html\n\n"
                           "<p>inner</p>\n--xxx-inner--";
  const HelpArchive archive =
      HelpArchive::read(multipart("xxx", {{"Content-Type: multipart/alternative; boundary=\"xxx-inner\"", inner},
                                          {"Content-Type: image/png\nContent-Location: a.png", "picture"}}));
  EXPECT_EQ(archive.page(), "<p>inner</p>");
  EXPECT_EQ(archive.count(), 3);
  ASSERT_NE(archive.find("a.png"), nullptr);
  EXPECT_EQ(archive.find("a.png")->content, "picture");
}

TEST(HelpArchive, DoesNotFollowPartsWithoutEnd) {
  QByteArray bytes = "Content-Type: text/html\n\n<p>deep</p>";
  for (int depth = 0; depth < 50; ++depth) {
    const QByteArray boundary = "b" + QByteArray::number(depth) + "x";
    bytes = "Content-Type: multipart/mixed; boundary=" + boundary + "\n\n--" + boundary + "\n" + bytes + "\n--" +
            boundary + "--\n";
  }
  EXPECT_EQ(page(bytes), "");
}

TEST(HelpArchive, EndsTheLastPartWithTheFileWhereTheLastBoundaryIsMissing) {
  EXPECT_EQ(page("Content-Type: multipart/related; boundary=xxx\r\n\r\n--xxx\r\nContent-Type: text/html\r\n\r\n<p>x"),
            "<p>x");
}

TEST(HelpArchive, LeavesOutWhatStandsBeforeAndAfterTheParts) {
  EXPECT_EQ(page("Content-Type: multipart/related; boundary=xxx\n\nThis is an archive.\n--xxx\nContent-Type: "
                 "text/html\n\n<p>x</p>\n--xxx--\n<p>after</p>"),
            "<p>x</p>");
}

TEST(HelpArchive, IsNotMisledByALineThatBeginsLikeABoundary) {
  EXPECT_EQ(page_in("Content-Type: text/html", "a\n--xxxy\nb"), "a\r\n--xxxy\r\nb");
}

TEST(HelpArchive, FindsPicturesByLocationFileNameAndContentId) {
  const HelpArchive archive = HelpArchive::read(
      multipart("xxx", {{"Content-Type: text/html", "<p>x</p>"},
                        {"Content-Type: image/png\nContent-Location: http://example.com/a/kep.png", "one"},
                        {"Content-Type: image/png\nContent-ID: <two@x>", "two"},
                        {"Content-Type: image/png\nContent-Location: k%C3%A9p%201.png", "three"}}));
  const auto content = [&](const QString& reference) {
    const ArchivePart* part = archive.find(reference);
    return part == nullptr ? QByteArray("none") : part->content;
  };
  EXPECT_EQ(content("http://example.com/a/kep.png"), "one");
  EXPECT_EQ(content("kep.png"), "one");
  EXPECT_EQ(content("file:///c:/x/kep.png"), "one");
  EXPECT_EQ(content("cid:two@x"), "two");
  EXPECT_EQ(content("kép 1.png"), "three");
  EXPECT_EQ(content("k%C3%A9p%201.png"), "three");
  EXPECT_EQ(content("other.png"), "none");
  EXPECT_EQ(content(""), "none");
}

TEST(HelpArchive, KeepsBinaryPartsToTheByte) {
  const QByteArray picture = png(3, 2, Qt::red);
  const HelpArchive archive =
      HelpArchive::read(multipart("xxx", {{"Content-Type: text/html", "<p>x</p>"}, picture_part("a.png", picture)}));
  ASSERT_NE(archive.find("a.png"), nullptr);
  EXPECT_EQ(archive.find("a.png")->content, picture);
  EXPECT_EQ(archive.find("a.png")->type, "image/png");
}

TEST(HelpArchive, ReadsAPageWithoutParts) {
  EXPECT_EQ(page("Content-Type: text/html; charset=utf-8\n\n<p>ő</p>"), "<p>ő</p>");
  EXPECT_EQ(page("\xEF\xBB\xBF"
                 "Content-Type: text/html\n\n<p>x</p>"),
            "<p>x</p>");
}

TEST(HelpArchive, ShowsPlainTextAsItStands) {
  EXPECT_EQ(page("Content-Type: text/plain\n\n1 < 2 & 3"), "1 &lt; 2 &amp; 3");
}

TEST(HelpArchive, HoldsNoPageWhereTheInputIsBroken) {
  for (const QByteArray& broken :
       {QByteArray(), QByteArray("\n\n\n"), QByteArray("PK\x03\x04"), QByteArray("<p>no headers</p>"),
        QByteArray("Content-Type: multipart/related; boundary=\"xxx"), QByteArray("Content-Type: multipart/related;"),
        QByteArray("Content-Type: multipart/related; boundary=xxx\n\nno part"),
        QByteArray("Content-Type: multipart/related; boundary=xxx\n\n--xxx"), QByteArray(1000, '\0'),
        QByteArray("Content-Type: image/png\n\n\x89PNG")}) {
    EXPECT_EQ(page(broken), "");
  }
}

TEST(HelpArchive, BoundsTheNumberOfParts) {
  QByteArray bytes = "Content-Type: multipart/related; boundary=x\n\n";
  for (int i = 0; i < 3000; ++i) bytes += "--x\n\n";
  EXPECT_EQ(HelpArchive::read(bytes).count(), 1000);
}

TEST(HelpArchive, BoundsTheNumberOfPartsWithinPartsToo) {
  QByteArray bytes = "Content-Type: multipart/related; boundary=x\n\n";
  for (int i = 0; i < 50; ++i)
    bytes += "--x\nContent-Type: multipart/mixed; boundary=y\n\n" + QByteArray("--y\n\n").repeated(60);
  EXPECT_EQ(HelpArchive::read(bytes).count(), 1000);
}

TEST(HelpArchive, LeavesOutHeadersBeyondAllReason) {
  QByteArray bytes;
  for (int i = 0; i < 1000; ++i) bytes += "X-" + QByteArray::number(i) + ": x\n";
  EXPECT_EQ(page(bytes + "Content-Type: text/html\n\n<p>x</p>"), "");
  EXPECT_EQ(page("Content-Type: text/html\n" + bytes + " folded\n\n<p>x</p>"), "<p>x</p>");
}

} // namespace
} // namespace cserko::test
