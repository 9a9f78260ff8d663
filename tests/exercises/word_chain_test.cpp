// Word chain: texts, the deal, the pool, dragging, clicking and keys.
#include "tests/exercises/word_chain_fixture.h"

#include <algorithm>
#include <set>

namespace cserko {
namespace {

using WordChain = WordChainTest;

TEST_F(WordChain, HasItsTextsAndMenus) {
  put_chain();
  start();
  const auto window = designed<frm_szólánc>();
  EXPECT_EQ(utf8(window->Caption), "Cserkó - Szólánc");
  EXPECT_EQ(utf8(window->frm_rejtvény.Caption), "A képek");
  EXPECT_EQ(utf8(window->frame_szólánc.Caption), "A szólánc");
  EXPECT_EQ(utf8(window->frame_szólánc.Name), "frm_szólánc");
  EXPECT_EQ(utf8(window->cmd_elcsúsztat[0].Caption), "Balra");
  EXPECT_EQ(utf8(window->cmd_elcsúsztat[1].Caption), "Jobbra");
  EXPECT_EQ(window->kép.count(), 28);
  EXPECT_EQ(window->pic_eredménykép.count(), 7);
  window->kép.each([&](const PictureBox& box) { EXPECT_EQ(box.container(), &window->frm_rejtvény); });
  window->pic_eredménykép.each([&](const PictureBox& box) { EXPECT_EQ(box.container(), &window->frame_szólánc); });
  for (const MenuItem* item : {&window->mnu_fájl_újjáték, &window->mnu_fájl_beállítások, &window->mnu_fájl_kilép})
    EXPECT_EQ(item->container(), &window->mnu_fájl);
  EXPECT_EQ(utf8(designed<frm_szólánc_segítő>()->Caption), "Cserkó - Szólánc - Segítő");
}

TEST_F(WordChain, TellsTheTaskOfItsType) {
  put_chain();
  put_settings_of({});
  start();
  auto& settings = load<frm_szólánc_beállítások>();
  const std::vector<std::string> texts{
      "Alkoss szóláncot, melyben az egyik szó utolsó szótagja megegyezik a következő szó első szótagjával!",
      "Alkoss szóláncot, melyben az egyik szó utolsó két betűje megegyezik a következő szó első két betűjével!",
      "Alkoss szóláncot,melyben az egyik szó utolsó betűje megegyezik a következő szó első betűjével!"};
  auto& window = open<frm_szólánc>();
  for (int type = 0; type < 3; ++type) {
    settings.opt_típus.choose(type);
    if (type == 2) then_close_message(); // these words do not link by one letter
    hand::click(window.mnu_fájl_újjáték);
    EXPECT_EQ(utf8(window.lbl_feladat.Caption), texts[static_cast<std::size_t>(type)]);
    expect_fitted(window.lbl_feladat);
  }
}

// --- The deal

TEST_F(WordChain, TheChainAndItsPicturesAreThePool) {
  put_chain(4);
  auto& window = deal();
  EXPECT_EQ(tags(window.kép), shuffled);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
  for (int i = 0; i < 28; ++i) {
    EXPECT_EQ(window.kép[i].Visible, i < 7) << i;
    if (i >= 7) {
      EXPECT_EQ(utf8(window.kép[i].Tag), "-1") << i;
    }
  }
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(picture(window.kép[i]), picture_path(std::stoi(shuffled[static_cast<std::size_t>(i)])));
    EXPECT_TRUE(window.kép[i].Enabled);
  }
  EXPECT_TRUE(window.frm_rejtvény.Visible);
  EXPECT_TRUE(window.frame_szólánc.Visible);
  EXPECT_EQ(window.Pointer, MousePointer::Arrow);
}

TEST_F(WordChain, ThePicturesHaveTheirNamesWithAHaloOrOnAPlate) {
  put_chain();
  auto& window = deal();
  const auto& halo = drawn(pool(window, 1)).texts();
  EXPECT_GT(halo.size(), 1U);
  EXPECT_EQ(utf8(halo.back()), "becica");
  load<frm_szólánc_beállítások>().Check_pontosbetűháttér.set_value(0);
  hand::click(window.mnu_fájl_újjáték);
  EXPECT_EQ(drawn(pool(window, 1)).texts(), std::vector<Text>{u"becica"});
}

TEST_F(WordChain, SyllablesAreShownWhereTheyMatchAndAreWanted) {
  put_chain();
  auto& window = deal({.syllables = true});
  EXPECT_EQ(utf8(drawn(pool(window, 1)).texts().back()), "be-ci-ca");
  EXPECT_EQ(utf8(drawn(load<frm_szólánc_segítő>().pic_eredménykép[1]).texts().back()), "be-ci-ca");
}

TEST_F(WordChain, SyllablesAreNotShownWhereLettersMatch) {
  for (const TextView name : {u"abc", u"cde", u"efg", u"ghi", u"ijk", u"klm", u"mno"})
    put({.név = Text(name), .szótagolt = u"szó-tag"});
  put({.név = u"utolsó"});
  auto& window = deal({.type = 2, .syllables = true});
  EXPECT_EQ(utf8(drawn(pool(window, 1)).texts().back()), "cde");
}

TEST_F(WordChain, AStartTooShortOrTooLongIsDrawnAnew) {
  put_chain();
  put_settings_of({.letters = 6});
  put({.név = u"ló", .szótagolt = u"dob-be"});
  put({.név = u"doboznyi", .szótagolt = u"dob-be"});
  put({.név = u"vége", .szótagolt = u"v"});
  start();
  machine.script_random({record(8), record(9)});
  script_chain();
  script_shuffle();
  EXPECT_EQ(tags(open<frm_szólánc>().kép), shuffled);
}

TEST_F(WordChain, TheFirstWordCanBeShown) {
  put_chain();
  auto& window = deal({.first_shown = true});
  EXPECT_EQ(row(window), row_of({0, -1, -1, -1, -1, -1, -1}));
  EXPECT_EQ(picture(window.pic_eredménykép[0]), picture_path(0));
  EXPECT_FALSE(pool(window, 0).Visible);
  EXPECT_TRUE(pool(window, 1).Visible);
}

TEST_F(WordChain, OtherwiseItIsInThePoolAndItsPlaceIsEmpty) {
  put_chain();
  auto& window = deal();
  EXPECT_TRUE(pool(window, 0).Visible);
  EXPECT_EQ(picture(window.pic_eredménykép[0]), "(none)");
}

TEST_F(WordChain, FurtherPicturesHaveNamesOfTheirOwnAndAllowedLengths) {
  put_chain(5);
  put({.név = u"ló", .szótagolt = u"x"});           // too short
  put({.név = u"hosszúszavak", .szótagolt = u"x"}); // too long
  put({.név = u"gahé", .szótagolt = u"x"});         // the name of a chain's word
  put({.név = u"resta", .szótagolt = u"x"});        // and one of another picture
  put({.név = u"kutya", .szótagolt = u"x"});
  put({.név = u"macska", .szótagolt = u"x"});
  put({.név = u"utolsó", .szótagolt = u"x"});
  put_settings_of({.letters = 6, .pictures = 14});
  start();
  script_chain();
  machine.script_random({record(7), record(13), record(14), record(15), record(16), record(7), record(17)});
  auto& window = open<frm_szólánc>();
  std::multiset<Text> names;
  for (int i = 0; i < 14; ++i) names.insert(session().képek[std::stoi(utf8(window.kép[i].Tag))].név);
  EXPECT_EQ(names.size(), 14U);
  for (const Text& name : names) {
    EXPECT_EQ(names.count(name), 1U) << utf8(name);
    EXPECT_NE(name, u"ló");
    EXPECT_NE(name, u"hosszúszavak");
  }
  EXPECT_EQ(names.count(u"resta"), 1U);
  EXPECT_EQ(names.count(u"kutya"), 1U);
}

TEST_F(WordChain, NoPictureStaysAtItsPlaceInTheShuffle) {
  put_chain();
  put_settings_of({});
  start();
  script_chain();
  // A draw of the picture's own place is dropped; a swap may bring one back, and the next round moves it.
  machine.script_random({drawing(0, 7), drawing(1, 7), drawing(3, 7), drawing(5, 7), drawing(0, 7)});
  auto& window = open<frm_szólánc>();
  EXPECT_EQ(tags(window.kép), shuffled);
  for (int game = 0; game < 200; ++game) {
    hand::click(window.mnu_fájl_újjáték);
    std::set<std::string> all;
    for (int i = 0; i < 7; ++i) {
      all.insert(utf8(window.kép[i].Tag));
      EXPECT_NE(utf8(window.kép[i].Tag), std::to_string(i)) << "its place before the shuffle";
    }
    EXPECT_EQ(all.size(), 7U);
  }
}

// --- Into the row and back

TEST_F(WordChain, ADraggedPictureIsShownUnderThePointer) {
  put_chain();
  auto& window = deal();
  PictureBox& source = pool(window, 1);
  EXPECT_FALSE(window.dragged.Visible);
  hand::press(source, 300, 200);
  hand::move(source, 330, 220);
  EXPECT_FALSE(window.dragged.Visible) << "a hand that trembles";
  hand::move(source, 1300, 900);
  EXPECT_TRUE(window.dragged.Visible);
  EXPECT_EQ(picture(window.dragged), picture_path(1));
  EXPECT_EQ(utf8(drawn(window.dragged).texts().back()), "becica");
  const Point corner = source.position_in_window();
  EXPECT_DOUBLE_EQ(window.dragged.Left, corner.x + 1000);
  EXPECT_DOUBLE_EQ(window.dragged.Top, corner.y + 700);
  EXPECT_EQ(hand::element_at(window, corner.x + 1300, corner.y + 900), &window.dragged) << "before everything else";
  hand::release(source, 1300, 900);
  EXPECT_FALSE(window.dragged.Visible);
}

TEST_F(WordChain, APictureDropsAnywhereOnAPlace) {
  put_chain();
  auto& window = deal();
  PictureBox& target = window.pic_eredménykép[3];
  const Point corner = target.position_in_window();
  for (const Point spot : {Point{1, 1}, Point{target.Width - 1, 1}, Point{1, target.Height - 1},
                           Point{target.Width - 1, target.Height - 1}}) {
    hand::drag_to(pool(window, 1), {20, 20}, {corner.x + spot.x, corner.y + spot.y});
    EXPECT_EQ(row(window), row_of({-1, -1, -1, 1, -1, -1, -1})) << spot.x << ", " << spot.y;
    EXPECT_EQ(picture(target), picture_path(1));
    EXPECT_EQ(utf8(drawn(target).texts().back()), "becica");
    EXPECT_FALSE(pool(window, 1).Visible);
    hand::click(target);
    EXPECT_TRUE(pool(window, 1).Visible);
  }
}

TEST_F(WordChain, APictureThatIsDroppedElsewhereStaysWhereItWas) {
  put_chain();
  auto& window = deal();
  const Point left = window.pic_eredménykép[0].position_in_window();
  const Point right = window.pic_eredménykép[1].position_in_window();
  const double between = (left.x + window.pic_eredménykép[0].Width + right.x) / 2;
  hand::drag_to(pool(window, 1), {20, 20}, {between, left.y + 100});
  hand::drag_to(pool(window, 1), {20, 20}, {100, 100});
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
  EXPECT_TRUE(pool(window, 1).Visible);
}

TEST_F(WordChain, OnlyAPictureOfThePoolCanBeDropped) {
  put_chain();
  auto& window = deal();
  window.cmd_kérdőjel.Tag = u"3";
  window.pic_eredménykép.DragDrop(2, window.cmd_kérdőjel, 5, 5);
  window.pic_eredménykép.DragDrop(2, window.pic_eredménykép[1], 5, 5);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(WordChain, ADropOnATakenPlaceSendsItsPictureBack) {
  put_chain();
  auto& window = deal();
  drag(window, 1, 0);
  drag(window, 2, 0);
  EXPECT_EQ(row(window), row_of({2, -1, -1, -1, -1, -1, -1}));
  EXPECT_TRUE(pool(window, 1).Visible);
  EXPECT_FALSE(pool(window, 2).Visible);
}

TEST_F(WordChain, AClickTakesAPictureUpAndTheNextOneOnAPlacePutsItDown) {
  put_chain();
  auto& window = deal();
  PictureBox& source = pool(window, 1);
  hand::click(source);
  EXPECT_EQ(window.chosen(), source.Index);
  EXPECT_TRUE(source.Selected);
  EXPECT_NE(source.BackColor, white);
  hand::click(window.pic_eredménykép[2]);
  EXPECT_EQ(row(window), row_of({-1, -1, 1, -1, -1, -1, -1}));
  EXPECT_FALSE(source.Visible);
  EXPECT_FALSE(source.Selected);
  EXPECT_EQ(source.BackColor, white);
  EXPECT_FALSE(window.chosen());
  hand::click(pool(window, 2));
  hand::click(window.pic_eredménykép[2]);
  EXPECT_EQ(row(window), row_of({-1, -1, 2, -1, -1, -1, -1})) << "as by a drop, the other goes back";
  EXPECT_TRUE(source.Visible);
}

TEST_F(WordChain, AnotherClickPutsThePictureDownAgainOrTakesAnother) {
  put_chain();
  auto& window = deal();
  hand::click(pool(window, 1));
  const auto lines = [](PictureBox& box) {
    const auto& all = drawn(box).drawings();
    return std::count_if(all.begin(), all.end(), [](const Drawing& d) { return d.kind == Drawing::Kind::Line; });
  };
  EXPECT_EQ(lines(pool(window, 1)), 4) << "a frame, so that it is not told by its colour alone";
  hand::click(pool(window, 2));
  EXPECT_EQ(lines(pool(window, 1)), 0);
  EXPECT_EQ(utf8(drawn(pool(window, 1)).texts().back()), "becica");
  EXPECT_EQ(window.chosen(), pool(window, 2).Index);
  hand::click(pool(window, 2));
  EXPECT_FALSE(window.chosen());
  hand::click(window.pic_eredménykép[0]);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
}

TEST_F(WordChain, ADragLetsGoOfWhatAClickHasTakenUp) {
  put_chain();
  auto& window = deal();
  hand::click(pool(window, 2));
  drag(window, 1, 4);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, 1, -1, -1}));
  EXPECT_FALSE(window.chosen());
  EXPECT_TRUE(pool(window, 2).Visible);
  hand::click(pool(window, 2));
  hand::drag_to(pool(window, 3), {20, 20}, {5, 5});
  EXPECT_FALSE(window.chosen()) << "also where it ends nowhere";
}

TEST_F(WordChain, APressOnThePlaceSendsItsPictureBack) {
  put_chain();
  auto& window = deal();
  drag(window, 1, 4);
  hand::press(window.pic_eredménykép[4], 50, 50);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1})) << "the press alone";
  EXPECT_EQ(picture(window.pic_eredménykép[4]), "(none)");
  EXPECT_TRUE(pool(window, 1).Visible);
  hand::release(window.pic_eredménykép[4], 50, 50);
  drag(window, 1, 4);
  hand::click(window.pic_eredménykép[4], MouseButton::Middle);
  EXPECT_TRUE(pool(window, 1).Visible) << "any other button";
}

TEST_F(WordChain, EverythingGoesByKeysAlone) {
  put_chain();
  auto& window = deal();
  const auto focus_on = [&](const Element& element) {
    for (int i = 0; i < 60 && window.focus() != &element; ++i) hand::key(window, key::tab);
    ASSERT_EQ(window.focus(), &element);
  };
  focus_on(pool(window, 1));
  hand::key(window, key::space);
  EXPECT_EQ(window.chosen(), pool(window, 1).Index);
  focus_on(window.pic_eredménykép[5]);
  hand::key(window, key::enter);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, 1, -1}));
  hand::key(window, key::space);
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, -1, -1, -1}));
  EXPECT_TRUE(pool(window, 1).Visible);
  hand::key(window, key::left);
  EXPECT_EQ(window.focus(), &window.pic_eredménykép[4]);
  hand::key(window, key::up);
  EXPECT_EQ(window.focus(), &window.kép[4]);
  hand::key(window, key::enter);
  EXPECT_EQ(window.chosen(), 4);
  focus_on(window.cmd_kérdőjel);
  then_in<frm_szólánc_segítő>([](frm_szólánc_segítő& shown) { hand::key(shown, key::escape); });
  hand::key(window, key::enter);
}

TEST_F(WordChain, AKeyThatIsHeldDownActsOnAPlaceOnce) {
  put_chain();
  auto& window = deal();
  drag(window, 1, 4);
  window.set_focus(&window.pic_eredménykép[4]);
  input::key_down(window, {.code = key::space, .repeated = true});
  EXPECT_EQ(row(window), row_of({-1, -1, -1, -1, 1, -1, -1}));
}

} // namespace
} // namespace cserko
