#include "data/pack/picture.h"
#include "data/pack/record_checks.h"
#include "data/pack/table.h"
#include "tests/data/samples.h"

#include <QFile>
#include <QTemporaryDir>

namespace cserko {
namespace {

template<class Change> WordRecord changed(Change change) {
  WordRecord record = apple();
  change(record);
  return record;
}
template<class Change> QStringList faults_with(Change change) { return record_faults(changed(change)); }
template<class Change> QStringList remarks_with(Change change) { return style_remarks(changed(change)); }

TEST(RecordChecks, AWholeRecordHasNoFault) {
  EXPECT_EQ(record_faults(apple()), QStringList());
  EXPECT_EQ(style_remarks(apple()), QStringList());
}

TEST(RecordChecks, StyleIsNoFault) {
  const auto clumsy = [](WordRecord& r) {
    r.syllables = "a-lma";
    r.definition = QStringLiteral("Alma.");
    r.truth = r.falsehood = QStringLiteral("nem alma");
  };
  EXPECT_EQ(faults_with(clumsy), QStringList());
  EXPECT_EQ(remarks_with(clumsy).size(), 9);
}

TEST(RecordChecks, EveryFieldMustBeFilledAndWritable) {
  for (QString WordRecord::*field : {&WordRecord::name, &WordRecord::english, &WordRecord::syllables,
                                     &WordRecord::definition, &WordRecord::truth, &WordRecord::falsehood}) {
    EXPECT_FALSE(faults_with([&](WordRecord& r) { r.*field = ""; }).isEmpty());
    EXPECT_FALSE(faults_with([&](WordRecord& r) { r.*field = " " + r.*field; }).isEmpty());
    EXPECT_FALSE(faults_with([&](WordRecord& r) { r.*field += QStringLiteral("ã"); }).isEmpty());
    EXPECT_FALSE(faults_with([&](WordRecord& r) { r.*field += "\n"; }).isEmpty());
  }
}

TEST(RecordChecks, NamesAreMadeOfTheirAlphabets) {
  EXPECT_FALSE(faults_with([](WordRecord& r) { r.name = r.syllables = QStringLiteral("al1"); }).isEmpty());
  EXPECT_FALSE(faults_with([](WordRecord& r) { r.english = QStringLiteral("äpple"); }).isEmpty());
  EXPECT_TRUE(faults_with([](WordRecord& r) { r.english = "ice cream"; }).isEmpty());
}

TEST(RecordChecks, SentencesBeginAndEndAsSentencesDo) {
  EXPECT_FALSE(remarks_with([](WordRecord& r) { r.truth = QStringLiteral("piros héja van."); }).isEmpty());
  EXPECT_FALSE(remarks_with([](WordRecord& r) { r.truth = QStringLiteral("Piros héja van"); }).isEmpty());
  EXPECT_FALSE(remarks_with([](WordRecord& r) { r.truth = QStringLiteral("Piros."); }).isEmpty());
  EXPECT_FALSE(remarks_with([](WordRecord& r) { r.truth = "A" + QString(" b").repeated(20) + "."; }).isEmpty());
}

TEST(RecordChecks, TheFalseStatementIsMoreThanTheTrueOneDenied) {
  EXPECT_FALSE(remarks_with([](WordRecord& r) {
                 r.falsehood = QStringLiteral("Nem piros héja és zöld levele van.");
               }).isEmpty());
  EXPECT_FALSE(remarks_with([](WordRecord& r) { r.falsehood = r.truth; }).isEmpty());
}

TEST(RecordChecks, TheDefinitionDoesNotGiveTheWordAway) {
  EXPECT_TRUE(names_itself("cseresznye", QStringLiteral("A cseresznyét szedik.")));
  EXPECT_TRUE(names_itself("kar", QStringLiteral("Ha emelünk, a karral tesszük.")));
  EXPECT_TRUE(names_itself("kar", QStringLiteral("Két karja van.")));
  EXPECT_TRUE(names_itself("alma", QStringLiteral("Az alma piros.")));
  EXPECT_TRUE(names_itself("alma", QStringLiteral("Az almát megesszük.")));
  EXPECT_FALSE(names_itself("kar", QStringLiteral("Karikát gurít a karácsonyfánál.")));
  EXPECT_FALSE(names_itself("toll", QStringLiteral("Tollászkodik a madár.")));
}

TEST(Syllables, AreReachedByOpeningBreaksBetweenLetters) {
  EXPECT_TRUE(syllables_fit_name("alma", "al-ma"));
  EXPECT_TRUE(syllables_fit_name("cseresznye", "cse-resz-nye"));
  EXPECT_TRUE(syllables_fit_name("asszony", "asz-szony"));
  EXPECT_TRUE(syllables_fit_name(QStringLiteral("karosszék"), QStringLiteral("ka-ros-szék")));
  EXPECT_FALSE(syllables_fit_name("asszony", "as-szony"));
  EXPECT_FALSE(syllables_fit_name("alma", "al--ma"));
  EXPECT_FALSE(syllables_fit_name("alma", "alma-"));
  EXPECT_FALSE(syllables_fit_name("alma", "al-mák"));
  EXPECT_FALSE(syllables_fit_name("kutya", "kut-ya"));
}

TEST(Syllables, OnlyTheFirstLongDoubleConsonantCanBeSplit) {
  EXPECT_TRUE(syllables_fit_name("hosszannya", "hosz-szannya"));
  EXPECT_FALSE(syllables_fit_name("hosszannya", "hosz-szany-nya"));
  EXPECT_FALSE(syllables_fit_name("sszó", "sz-szó"));
}

TEST(Syllables, HaveOneVowelEach) {
  EXPECT_TRUE(one_vowel_each(QStringLiteral("a-u-tó")));
  EXPECT_FALSE(one_vowel_each(QStringLiteral("au-tó")));
  EXPECT_FALSE(one_vowel_each("al-m-a"));
}

class Folder : public testing::Test {
 protected:
  void put(const QString& name, const QByteArray& bytes) { write_if_changed(folder_.filePath(name), bytes); }
  void put_word(int number, const WordRecord& record, const QByteArray& body) {
    SquarePicture picture(svg(body));
    put(QString("%1.wms").arg(number), record_bytes(record));
    put(QString("%1.wmf").arg(number), picture.metafile());
  }
  WordRecord pear() {
    return {QStringLiteral("körte"),
            "pear",
            QStringLiteral("kör-te"),
            QStringLiteral("Sárga, lédús gyümölcs, alul szélesebb."),
            QStringLiteral("Nyáron érik a kertben."),
            QStringLiteral("Ugatva kergeti a macskát.")};
  }
  Review review() { return folder_review({folder_.path()}); }
  QTemporaryDir folder_;
  const QByteArray square_ = "<path fill=\"#ff0000\" d=\"M8 8h16v16H8z\"/>";
  const QByteArray bar_ = "<path fill=\"#00ff00\" d=\"M8 12h16v8H8z\"/>";
};

TEST_F(Folder, OfWholeRecordsIsRight) {
  put_word(0, apple(), square_);
  put_word(1, pear(), bar_);
  EXPECT_EQ(review().all(), QStringList());
}

TEST_F(Folder, MustHaveNoGapNoTwinAndNoMissingPicture) {
  put_word(0, apple(), square_);
  put_word(2, pear(), bar_);
  EXPECT_FALSE(review().faults.isEmpty());
  put_word(1, apple(), "<path fill=\"#0000ff\" d=\"M8 8h16v16H8z\"/>");
  const QStringList twins = review().all();
  EXPECT_EQ(twins.size(), 2) << twins.join(" | ").toStdString(); // the name and the definition
  put_word(1,
           {"haj", "hair", "haj", QStringLiteral("A fejünkön nő, fésüljük."), QStringLiteral("Le lehet vágni ollóval."),
            QStringLiteral("Reggelire megisszuk teával.")},
           square_);
  EXPECT_EQ(review().remarks.size(), 1); // the picture
  QFile::remove(folder_.filePath("1.wmf"));
  EXPECT_EQ(review().faults.size(), 1); // none
  put("1.wmf", "no picture");
  EXPECT_EQ(review().faults.size(), 1); // broken
}

TEST_F(Folder, TakesAPhotoWhereThereIsNoMetafile) {
  put_word(0, apple(), square_);
  QFile::remove(folder_.filePath("0.wmf"));
  QImage photo(20, 20, QImage::Format_RGB32);
  photo.fill(Qt::red);
  ASSERT_TRUE(photo.save(folder_.filePath("0.jpg")));
  EXPECT_EQ(review().all(), QStringList());
}

TEST_F(Folder, BehindAnotherIsReadOnFromIt) {
  put_word(0, apple(), square_);
  put("own/1.wms", record_bytes(pear()));
  QImage photo(20, 20, QImage::Format_RGB32);
  photo.fill(Qt::red);
  ASSERT_TRUE(photo.save(folder_.filePath("own/1.jpg")));
  const QString own = folder_.filePath("own");
  EXPECT_EQ(folder_review({own, folder_.path()}).all(), QStringList());
  EXPECT_FALSE(folder_review({own}).faults.isEmpty()); // alone it begins with a gap
  put("own/1.wms", record_bytes(apple()));
  EXPECT_EQ(folder_review({own, folder_.path()}).faults.size(), 1);
}

TEST_F(Folder, ThatIsAbsentOrEmptyIsAFault) {
  EXPECT_FALSE(review().faults.isEmpty());
  EXPECT_FALSE(folder_review({folder_.filePath("absent")}).faults.isEmpty());
}

TEST_F(Folder, TellsOfATextCutShort) {
  put_word(0, apple(), square_);
  put("0.wms", "magyar\r\nalma\r\n");
  EXPECT_EQ(review().faults.size(), 1);
}

} // namespace
} // namespace cserko
