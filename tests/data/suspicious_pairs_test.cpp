// Pairs of records that a child could take for each other.
#include "data/checker/suspicious_pairs.h"
#include "data/pack/picture.h"
#include "data/pack/table.h"
#include "tests/data/samples.h"

#include <QTemporaryDir>

namespace cserko {
namespace {

class SuspiciousPairs : public testing::Test {
 protected:
  static WordRecord record(const QString& name, const QString& definition) {
    WordRecord result = apple();
    result.name = name;
    result.definition = definition;
    return result;
  }
  Exceptions excusing(const QString& row = {}) {
    const QString path = folder_.filePath("pairs.tsv");
    write_if_changed(path, ("kind\tnames\treason\n" + row).toUtf8());
    return {path, {"kind", "names"}};
  }
  QStringList definitions(const QString& first, const QString& second) {
    Exceptions none = excusing();
    return suspicious_definitions({record("alma", first), record(QStringLiteral("körte"), second)}, none);
  }
  QTemporaryDir folder_;
};

TEST_F(SuspiciousPairs, AreDefinitionsThatShareHalfOfTheirContentWords) {
  EXPECT_EQ(definitions(QStringLiteral("Apró testű tengeri állat, csápokkal."),
                        QStringLiteral("Puha testű, lebegő tengeri állat, amely világít."))
                .size(),
            1);
  EXPECT_EQ(definitions(QStringLiteral("Apró tengeri állat, csápokkal."),
                        QStringLiteral("Puha, lebegő tengeri állat, amely világít."))
                .size(),
            0); // two words are shared by many
  EXPECT_EQ(definitions(QStringLiteral("Ez olyan, hogy amelyben nagy és kis is van."),
                        QStringLiteral("Ilyen, hogy amelyben nagy és kis is van."))
                .size(),
            0); // empty words
}

TEST_F(SuspiciousPairs, AreDefinitionsThatNameEachOthersRecord) {
  EXPECT_EQ(
      definitions(QStringLiteral("Kerek, a körtével együtt árulják."), QStringLiteral("Édesebb az almánál.")).size(),
      1);
  EXPECT_EQ(definitions(QStringLiteral("Kerek, ropogós."), QStringLiteral("Édesebb az almánál.")).size(), 0);
  EXPECT_EQ(definitions(QStringLiteral("Kerek, ropogós."), QStringLiteral("Ropogós, édesebb az almánál.")).size(), 1);
  EXPECT_EQ(definitions(QStringLiteral("Édesebb a körténél, ropogós."), QStringLiteral("Ropogós.")).size(), 1);
  // Another word with the same beginning is not the record, and its own name is not said of another.
  EXPECT_EQ(definitions(QStringLiteral("Kerek, ropogós."), QStringLiteral("Ropogós, az almanach említi.")).size(), 0);
}

TEST_F(SuspiciousPairs, AreOnePictureInTwoColours) {
  const auto drawn = [](const QByteArray& body) {
    SquarePicture picture(svg(body));
    return draw_metafile(picture.metafile(), 160);
  };
  const QByteArray face = "<circle cx=\"16\" cy=\"16\" r=\"14\" fill=\"%1\"/><path fill=\"#222\" d=\"M9 10h4v4H9zM19 "
                          "10h4v4h-4zM10 21h12v3H10z\"/>";
  const QImage yellow = drawn(QByteArray(face).replace("%1", "#ffc83d"));
  const QImage green = drawn(QByteArray(face).replace("%1", "#44aa33"));
  const QImage house =
      drawn("<path fill=\"#aa3322\" d=\"M2 16L16 2l14 14v14H2z\"/><path fill=\"#fff\" d=\"M7 18h6v6H7z\"/>");
  EXPECT_GT(likeness(yellow, green), 0.9);
  EXPECT_LT(likeness(yellow, house), 0.6);
  const std::vector<WordRecord> records{record("alma", ""), record(QStringLiteral("körte"), ""), record("ablak", "")};
  Exceptions none = excusing();
  EXPECT_EQ(suspicious_pictures(records, {yellow, green, house}, none).size(), 1);
  EXPECT_EQ(suspicious_pictures(records, {yellow, QImage(), house}, none).size(), 0);
  Exceptions excused = excusing(QStringLiteral("picture\talma körte\tfelt on purpose\n"));
  EXPECT_EQ(suspicious_pictures(records, {yellow, green, house}, excused), QStringList());
  EXPECT_EQ(excused.faults(), QStringList());
}

TEST_F(SuspiciousPairs, AreExcusedByKindAndNamesWithAReason) {
  const std::vector<WordRecord> records{record("alma", QStringLiteral("A körte mellett terem.")),
                                        record(QStringLiteral("körte"), QStringLiteral("Az alma mellett terem."))};
  Exceptions excused = excusing(QStringLiteral("definition\talma körte\teach is known by its picture\n"));
  EXPECT_EQ(suspicious_definitions(records, excused), QStringList());
  EXPECT_EQ(excused.faults(), QStringList());
  Exceptions of_other_kind = excusing(QStringLiteral("picture\talma körte\tnot this\n"));
  EXPECT_EQ(suspicious_definitions(records, of_other_kind).size(), 1);
  EXPECT_EQ(of_other_kind.faults().size(), 1);
}

} // namespace
} // namespace cserko
