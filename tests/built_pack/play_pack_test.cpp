// The exercises are played on the words that a child gets.
#include "core/exercise.h"
#include "core/frm_főablak.h"
#include "core/frm_grafikus_főablak.h"
#include "core/kszöveg.h"
#include "core/settings.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/syllables/frm_merremutat.h"
#include "exercises/syllables/frm_szótagkereső.h"
#include "tests/data_sounds/pack_files.h"
#include "tests/players/betűnézegető_player.h"
#include "tests/players/cserkó_player.h"
#include "tests/players/headless_hand.h"
#include "tests/players/played_exercise.h"
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

TEST_F(BuiltPackTest, EveryPlaceOfTheGraphicMainWindowHasItsPicture) {
  auto& main = load<frm_grafikus_főablak>();
  for (int i = 0; i < graphic_place_count; ++i) EXPECT_NE(main.img_játék[i].Picture, nullptr) << i;
  EXPECT_NE(main.háttér[0].Picture, nullptr);
  EXPECT_NE(main.drawn_canvas(), nullptr) << "the landscape";
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
  play(player, [&] { return player.sets() >= 300; });
  EXPECT_EQ(player.sets(), 300);
  EXPECT_GE(player.wrong_answers(), 40);
}

TEST_F(BuiltPackTest, LetterViewerFindsThePicturesOfThePack) {
  machine.files().put(u"c:\\pomzu\\cserko\\betűnézegető.ini",
                      " 13 \r\n 0 \r\n 1 \r\nFalse\r\nTrue\r\n 1 \r\nTrue\r\nFalse\r\n");
  load_records();
  BetűnézegetőPlayer player(session(), PlayMode::Mouse, 5);
  play(player, [&] { return player.found() >= 300; });
  EXPECT_EQ(player.found(), 300);
  EXPECT_GE(player.wrong_answers(), 50);
}

TEST_F(BuiltPackTest, SyllableSearchFindsPlacesForTheSyllablesOfEveryWord) {
  load_records();
  auto& window = load<frm_szótagkereső>();
  int dealt = 0;
  for (int i = 0; i < last(); ++i) {
    if (session().képek.szótagszám(i) < 3 || i == window.aktuális_kép()) continue;
    machine.script_random({drawing(i, last())});
    window.beáll();
    EXPECT_EQ(window.aktuális_kép(), i);
    EXPECT_EQ(window.lbl_szótag.count(), session().képek.szótagszám(i));
    // The row of the whole word fits as well.
    const double row = machine.measure(window.szövegtároló.Font, session().képek[i].név).width;
    EXPECT_LE(row, window.szövegtároló.Width - 100) << utf8(session().képek[i].név);
    ++dealt;
  }
  EXPECT_GE(dealt, 200);
}

TEST_F(BuiltPackTest, WhichWayShowsEveryPictureOfItsCollectionWithItsQuestion) {
  load_records();
  auto& window = load<frm_merremutat>();
  const std::vector<IrányKép> motifs = window.irányképek();
  EXPECT_EQ(motifs.size(), test::names_in("irkep", ".swm").size() + 1);
  std::set<Text> shown;
  for (std::size_t motif = 1; motif < motifs.size(); ++motif) {
    for (std::size_t direction = 0; direction < 4; ++direction) {
      if (motifs[motif].képfájl.at(direction).empty()) continue;
      machine.script_random({drawing(static_cast<double>(direction), 4),
                             drawing(static_cast<double>(motif), static_cast<double>(motifs.size()))});
      window.beáll();
      ASSERT_NE(window.kép.Picture, nullptr);
      EXPECT_EQ(window.irány(), static_cast<int>(direction));
      EXPECT_EQ(window.kép.Picture->path(), motifs[motif].képfájl.at(direction));
      EXPECT_EQ(window.lbl_feladat.Caption, motifs[motif].kérdés + u"?");
      EXPECT_TRUE(window.lbl_feladat.Caption.starts_with(u"Merre "));
      shown.insert(window.kép.Picture->path());
    }
  }
  EXPECT_EQ(shown.size(), test::names_in("irkep", ".wmf").size());
}

// Whatever can be opened from the menu of a window is opened, and asked for its help.
TEST_F(BuiltPackTest, HasEveryHelpPageThatTheSuiteAsksFor) {
  load_records();
  machine.user = [](Window& top) {
    hand::key(top, key::f1);
    hand::close(top);
    return true;
  };
  const auto choose_all = [this](const std::function<Window&()>& window) {
    const auto shown = [&]() -> Window& {
      machine.show(window());
      return window();
    };
    choose_in_menus(shown, [](const Element& entry) { return entry.Caption != u"Kilépés"; });
  };
  int exercises = 0;
  for (const Text& name : session().offered()) {
    const auto exercise = [&]() -> Window& { return session().window(name); };
    if (dynamic_cast<ExerciseWindow*>(&exercise()) == nullptr) continue;
    ++exercises;
    const std::size_t asked = machine.processes.size();
    choose_all(exercise);
    EXPECT_GT(machine.processes.size(), asked) << utf8(name);
    session().unload(exercise());
  }
  EXPECT_EQ(exercises, static_cast<int>(played_exercises().size()));
  hand::click(open<frm_főablak>().cmd_súgó);
  const std::size_t asked = machine.processes.size();
  choose_all([this]() -> Window& { return load<frm_főablak>(); });
  EXPECT_GT(machine.processes.size(), asked) << "the drawing board has a page";
  for (const auto& process : machine.processes) {
    const Text page = process.command_line.substr(process.command_line.find(u".exe ") + 5);
    EXPECT_TRUE(machine.files().exists(page)) << utf8(page);
  }
}

class EachExerciseOnThePack : public BuiltPackTest, public ::testing::WithParamInterface<PlayedExercise> {};
// The letter viewer asks nothing with its factory settings; it is played above.
std::vector<PlayedExercise> asking_exercises() {
  std::vector<PlayedExercise> exercises = played_exercises();
  std::erase_if(exercises, [](const PlayedExercise& exercise) { return exercise.window == u"frm_betűnézegető"; });
  return exercises;
}

INSTANTIATE_TEST_SUITE_P(Played, EachExerciseOnThePack, ::testing::ValuesIn(asking_exercises()),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(EachExerciseOnThePack, IsSolvedSetAfterSetWithTheFactorySettings) {
  load_records();
  const auto player = GetParam().make(session(), PlayMode::Mouse, 5);
  play(*player, [&] { return player->sets() >= 50; });
  EXPECT_EQ(player->sets(), 50);
  // One of five tasks, but for those where no answer would be wrong.
  EXPECT_GE(player->wrong_answers(), GetParam().tasks == 1 ? 5 : 50 * GetParam().tasks / 6);
}

} // namespace
} // namespace cserko
