// The exercises are played on the words that a child gets.
#include "core/frm_főablak.h"
#include "core/kszöveg.h"
#include "exercises/letters/frm_cserkó.h"
#include "tests/data_sounds/pack_files.h"
#include "tests/players/betűfelesleg_player.h"
#include "tests/players/betűhiány_player.h"
#include "tests/players/betűnézegető_player.h"
#include "tests/players/betűválogatás_player.h"
#include "tests/players/cserkó_player.h"
#include "tests/players/headless_hand.h"
#include "tests/players/igazhamis_player.h"
#include "tests/players/képmemória_player.h"
#include "tests/players/mondatkép_player.h"
#include "tests/players/szótagoló_player.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {
namespace {

namespace fs = std::filesystem;

constexpr int draws = 10000;

class BuiltPackTest : public SuiteTest {
 protected:
  BuiltPackTest() {
    const fs::path pack = test::in_pack("");
    std::vector<fs::path> paths;
    for (const auto& entry : fs::recursive_directory_iterator(pack))
      if (entry.is_regular_file()) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    for (const fs::path& path : paths) {
      Text name = path.lexically_relative(pack).generic_u16string();
      std::replace(name.begin(), name.end(), u'/', u'\\');
      machine.files().put(Text(HeadlessPlatform::folder) + name, test::bytes_of(path));
    }
    assemble();
  }
  void load_records() { session().képek.load(machine.files(), session().alapkönyvtár); }
  int last() const { return static_cast<int>(test::names_in("kepek", ".wms").size()) - 1; }

  /// Plays from the start of the program until `done`, then leaves. A panel that is still open is closed first.
  void play(Player& player, const std::function<bool()>& done) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      const bool in_window =
          dynamic_cast<ExerciseWindow*>(&top) != nullptr || dynamic_cast<frm_főablak*>(&top) != nullptr;
      if (!done() || !in_window) return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
    EXPECT_TRUE(machine.ended());
  }
};

TEST_F(BuiltPackTest, LoadsEveryRecordWhole) {
  load_records();
  const Records& records = session().képek;
  ASSERT_EQ(records.képszám, last());
  EXPECT_GE(last() + 1, 500);
  EXPECT_EQ(records.left_out(), 0);
  for (int i = 0; i <= last(); ++i) {
    const KépAdat& record = records[i];
    EXPECT_TRUE(machine.files().exists(record.wmf)) << i;
    for (const Text* field :
         {&record.név, &record.angol, &record.szótagolt, &record.meghatározás, &record.igaz, &record.hamis})
      EXPECT_FALSE(field->empty()) << i;
  }
}

TEST_F(BuiltPackTest, TenThousandDrawsShowEveryRecordButTheLast) {
  load_records();
  std::set<int> seen;
  for (int i = 0; i < draws; ++i) seen.insert(session().képek.draw(machine, [](int) { return true; }));
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(last()));
  EXPECT_EQ(*seen.begin(), 0);
  EXPECT_EQ(*seen.rbegin(), last() - 1);
}

TEST_F(BuiltPackTest, ScrambledWordShowsEveryWordThatFitsItsFrameButTheLast) {
  load_records();
  auto& window = load<frm_cserkó>();
  const auto fits = [&](int i) {
    const Text& word = session().képek[i].név;
    return kszöveg(word).MAGYARBETŰKSZÁMA() <= 12 &&
           machine.measure(window.kép.Font, word).width <= 0.9 * window.kép.Width;
  };
  std::set<int> wanted;
  for (int i = 0; i < last(); ++i)
    if (fits(i)) wanted.insert(i);
  EXPECT_GE(wanted.size(), 500U);
  std::set<int> seen;
  for (int i = 0; i < draws; ++i) {
    window.beáll();
    seen.insert(window.feladat_index());
  }
  EXPECT_EQ(seen, wanted);
}

TEST_F(BuiltPackTest, ScrambledWordIsSolvedWordAfterWord) {
  load_records();
  CserkóPlayer player(session(), CserkóPlayer::Mode::Mouse, 5);
  play(player, [&] { return player.solved() >= 300; });
  EXPECT_EQ(player.solved(), 300);
  EXPECT_GE(player.wrong_answers(), 40);
}

TEST_F(BuiltPackTest, LetterViewerFindsThePicturesOfThePack) {
  machine.files().put(u"c:\\pomzu\\cserko\\betűnézegető.ini",
                      " 13 \r\n 0 \r\n 1 \r\nFalse\r\nTrue\r\n 1 \r\nTrue\r\nFalse\r\n");
  load_records();
  BetűnézegetőPlayer player(session(), ExercisePlayer::Mode::Mouse, 5);
  play(player, [&] { return player.found() >= 300; });
  EXPECT_EQ(player.found(), 300);
  EXPECT_GE(player.wrong_answers(), 50);
}

template<class P> class EachExerciseOnThePack : public BuiltPackTest {};
using Players = ::testing::Types<BetűfeleslegPlayer, BetűválogatásPlayer, IgazhamisPlayer, MondatképPlayer,
                                 SzótagolóPlayer, KépmemóriaPlayer, BetűhiányPlayer>;
TYPED_TEST_SUITE(EachExerciseOnThePack, Players);

TYPED_TEST(EachExerciseOnThePack, IsSolvedSetAfterSetWithTheFactorySettings) {
  TypeParam player(this->session(), ExercisePlayer::Mode::Mouse, 5);
  this->play(player, [&] { return player.sets() >= 50; });
  EXPECT_EQ(player.sets(), 50);
  EXPECT_GE(player.wrong_answers(), 50);
}

} // namespace
} // namespace cserko
