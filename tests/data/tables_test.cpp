#include "data/pack/icon_set.h"
#include "data/pack/record.h"
#include "data/pack/table.h"
#include "tests/data/samples.h"

#include <QFile>
#include <QTemporaryDir>

namespace cserko {
namespace {

class Tables : public testing::Test {
 protected:
  QString file(const QByteArray& bytes) {
    QString path = folder_.filePath("file");
    QFile out(path);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
    return path;
  }
  QTemporaryDir folder_;
};

TEST_F(Tables, AreReadWithTheLineOfEachRow) {
  const auto rows = read_table(file("a\tb\n1\t2\n\n# remark\n3\t\n"), {"a", "b"});
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].cells, (QStringList{"1", "2"}));
  EXPECT_EQ(rows[1].cells, (QStringList{"3", ""}));
  EXPECT_EQ(rows[1].line, 5);
}

TEST_F(Tables, BringTypedAccentsToOneForm) {
  EXPECT_EQ(read_table(file("a\ne\xCC\x81\n"), {"a"})[0].cells[0], QString::fromUtf8("\xC3\xA9"));
}

TEST_F(Tables, RefuseOtherColumnsAndOtherNumbersOfCells) {
  EXPECT_THROW(read_table(file("a\tc\n"), {"a", "b"}), PackError);
  EXPECT_THROW(read_table(file("a\tb\n1\n"), {"a", "b"}), PackError);
  EXPECT_THROW(read_table(file("a\tb\n1\t2\t3\n"), {"a", "b"}), PackError);
  EXPECT_THROW(read_table(file(""), {"a"}), PackError);
  EXPECT_THROW(read_table(folder_.filePath("absent"), {"a"}), PackError);
}

TEST_F(Tables, WritingTheSameBytesLeavesTheFileAlone) {
  const QString path = folder_.filePath("deep/er/file");
  write_if_changed(path, "one");
  QFile out(path);
  ASSERT_TRUE(out.open(QIODevice::ReadWrite));
  const QDateTime past = QDateTime::fromSecsSinceEpoch(1000000);
  ASSERT_TRUE(out.setFileTime(past, QFileDevice::FileModificationTime));
  out.close();
  write_if_changed(path, "one");
  EXPECT_EQ(QFileInfo(path).lastModified(), past);
  write_if_changed(path, "two");
  EXPECT_EQ(read_file(path), "two");
}

TEST_F(Tables, IconsWithAMaskAFilterAnImageOrACutAreRefused) {
  const QSize view(32, 32);
  for (const char* body :
       {"<mask/>", "<filter/>", "<image/>", "<clipPath id=\"a\"><path d=\"M0 0h16v16H0z\"/></clipPath>"})
    EXPECT_NE(refusal_of_svg(body, view), "") << body;
  EXPECT_EQ(refusal_of_svg("<linearGradient/><path opacity=\".5\"/>", view), "");
  EXPECT_EQ(refusal_of_svg("<path fill=\"#fff\" d=\"M0 0h3v3z\"/>", view), "");
  EXPECT_EQ(refusal_of_svg("<clipPath id=\"a\"><path fill=\"#fff\" d=\"M0 0h32v32H0z\"/></clipPath>", view), "");
}

TEST_F(Tables, IconSetGivesWholeDocumentsAndRefusesUnknownNames) {
  const IconSet icons(file("{\"width\":32,\"height\":32,\"icons\":{\"dot\":{\"body\":\"<use href=\\\"#x\\\"/>\"},"
                           "\"wide\":{\"body\":\"<g/>\",\"width\":33},\"faint\":{\"body\":\"<mask/>\"}}}"));
  EXPECT_TRUE(icons.svg("dot").contains("xlink:href=\"#x\""));
  EXPECT_TRUE(icons.svg("wide").contains("viewBox=\"0 0 33 32\""));
  EXPECT_THROW(icons.svg("absent"), PackError);
  EXPECT_THROW(icons.svg("faint"), PackError);
  EXPECT_THROW(IconSet(file("{}")), PackError);
}

TEST(RecordFile, HasEightLinesInTheCodePageWithCarriageReturns) {
  WordRecord record = apple();
  record.name = QStringLiteral("őrű");
  const QByteArray bytes = record_bytes(record);
  const QList<QByteArray> lines = bytes.split('\n');
  ASSERT_EQ(lines.size(), 9);
  EXPECT_TRUE(lines[8].isEmpty());
  EXPECT_EQ(lines[1], QByteArray("\xF5r\xFB\r"));
  EXPECT_EQ(lines[3], QByteArray("apple\r"));
  EXPECT_EQ(lines[4], QByteArray("al-ma\r"));
  EXPECT_EQ(bytes.count("\r\n"), 8);
}

TEST(RecordFile, IsReadBackAsItWasWritten) {
  const auto record = read_record(record_bytes(apple()));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->name, "alma");
  EXPECT_EQ(record->falsehood, apple().falsehood);
  EXPECT_FALSE(read_record("one\r\ntwo\r\n"));
}

TEST(RecordFile, RefusesCharactersThatTheCodePageLacks) {
  WordRecord record = apple();
  record.definition = QStringLiteral("Ãlma.");
  EXPECT_THROW(record_bytes(record), PackError);
}

} // namespace
} // namespace cserko
