// The settings of Knight's jump: the design of the dialog, its file of fourteen lines, the language, the character.
#include "tests/exercises/knight_fixture.h"

namespace cserko {
namespace {

class KnightSettingsTest : public KnightTest {
 protected:
  static constexpr TextView factory = u"cserko\\lóugrás.ini";

  frm_lóugrás_beáll& dialog() { return load<frm_lóugrás_beáll>(); }
  void in_dialog(frm_lóugrás& window, const std::function<void(frm_lóugrás_beáll&)>& deed) {
    then_in<frm_lóugrás_beáll>(deed);
    hand::click(window.mnu_fájl_beállítások);
  }
  frm_lóugrás& plain_game() {
    put_words();
    return game();
  }
  std::string values() {
    auto& d = dialog();
    std::string all;
    for (const UpDown* updown : {&d.udsorokszáma, &d.udoszlopokszáma, &d.udszóbetmaxszám, &d.udképekszáma})
      all += std::to_string(updown->value()) + " ";
    for (const CheckBox* box :
         {&d.befejezés_után_olvasás, &d.chktöltelékbetűk, &d.chk_képekbemutatása, &d.chk_segítség_engedélyezése})
      all += std::to_string(box->value()) + " ";
    return all + utf8(d.txt_töltelékkarakter.text()) + " " + std::to_string(d.optszabály.chosen()) + " " +
           std::to_string(d.optnyelv.chosen());
  }
  static const inline std::string defaults = "8 8 12 4 0 1 0 0 . 0 2";
};

TEST_F(KnightSettingsTest, HasItsTexts) {
  plain_game();
  auto& d = dialog();
  EXPECT_EQ(utf8(d.Caption), "Cserkó - Lóugrás - Beállítások");
  EXPECT_EQ(utf8(d.lbl_sorokszáma.Caption), "So&rok száma:");
  EXPECT_EQ(utf8(d.lbl_oszlopokszáma.Caption), "&Oszlopok száma:");
  EXPECT_EQ(utf8(d.lbl_szóbetmaxszám.Caption), "Szó ma&ximális betűszáma:");
  EXPECT_EQ(utf8(d.chktöltelékbetűk.Caption), "&Töltelék-betűk beszúrása");
  EXPECT_EQ(utf8(d.chk_segítség_engedélyezése.Caption), "Segítség &engedélyezése");
  EXPECT_EQ(utf8(d.chk_képekbemutatása.Caption), "Képek &bemutatása játék előtt");
  EXPECT_EQ(utf8(d.befejezés_után_olvasás.Caption), "Befejezés &után olvasás");
  EXPECT_EQ(utf8(d.optszabály[0].Caption), "Lépés &lólépésben");
  EXPECT_EQ(utf8(d.optszabály[1].Caption), "Lépés a &szomszédos mezőkre");
  EXPECT_EQ(utf8(d.optnyelv[2].Caption), "&Magyar");
  EXPECT_EQ(utf8(d.optnyelv[4].Caption), "&Angol");
  EXPECT_EQ(d.optnyelv.count(), 2);
  EXPECT_EQ(utf8(d.Frame_szabály.Caption), "Szabály");
  EXPECT_EQ(utf8(d.Frame_olvasás.Caption), "Olvasás");
  EXPECT_EQ(utf8(d.Frame_nyelv.Caption), "Nyelv");
  EXPECT_EQ(utf8(d.Frame_tábla.Caption), "A játéktábla");
}

TEST_F(KnightSettingsTest, HasItsRangesAndDefaults) {
  plain_game();
  auto& d = dialog();
  const auto expect_range = [](const UpDown& updown, const TextBox& box, int minimum, int maximum, int value) {
    EXPECT_EQ(updown.Min, minimum) << utf8(updown.Name);
    EXPECT_EQ(updown.Max, maximum) << utf8(updown.Name);
    EXPECT_EQ(updown.Increment, 1) << utf8(updown.Name);
    EXPECT_EQ(updown.Buddy, &box) << utf8(updown.Name);
    EXPECT_EQ(utf8(box.text()), std::to_string(value)) << utf8(updown.Name);
  };
  expect_range(d.udsorokszáma, d.txtsorokszáma, 6, 8, 8);
  expect_range(d.udoszlopokszáma, d.txtoszlopokszáma, 6, 12, 8);
  expect_range(d.udszóbetmaxszám, d.txtszóbetmaxszám, 4, 12, 12);
  expect_range(d.udképekszáma, d.txtképekszáma, 1, 4, 4);
  EXPECT_EQ(values(), defaults);
}

TEST_F(KnightSettingsTest, ReadsFourteenLines) {
  put_words();
  put_settings(u"lóugrás.ini", {u" 7 ", u" 11 ", u" 9 ", u" 3 ", u" 2 ", u" 1 ", u" 0 ", u"\"#\"", u" 1 ", u" 1 ",
                                u"False", u"True", u"True", u"False"});
  auto& window = [&]() -> frm_lóugrás& {
    for (int i = 0; i < 4; ++i) then([](Window& shown) { hand::close(shown); }); // the pictures are shown first
    return game();
  }();
  EXPECT_EQ(values(), "7 11 9 3 1 0 1 1 # 1 2");
  EXPECT_TRUE(window.cmd_súgó.Enabled);
  EXPECT_EQ(shown_fields(window), 77);
}

TEST_F(KnightSettingsTest, OkWritesTheSameLinesAndDealsWithTheNewRule) {
  auto& window = plain_game();
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::step(d.udsorokszáma, -1);
    hand::step(d.udoszlopokszáma, 1);
    hand::step(d.udszóbetmaxszám, -1);
    hand::step(d.udképekszáma, -1);
    hand::click(d.befejezés_után_olvasás);
    hand::click(d.chktöltelékbetűk);
    hand::write(d.txt_töltelékkarakter, u"+");
    hand::click(d.chk_segítség_engedélyezése);
    hand::click(d.optszabály[1]);
    hand::click(d.optnyelv[4]);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(settings(u"lóugrás.ini"),
            " 7 \r\n 9 \r\n 11 \r\n 3 \r\n 4 \r\n 1 \r\n 0 \r\n\"+\"\r\n 0 \r\n 1 \r\nFalse\r\n"
            "True\r\nFalse\r\nTrue\r\n");
  EXPECT_FALSE(dialog().visible());
  EXPECT_EQ(shown_fields(window), 63);
  EXPECT_TRUE(window.is_move({0, 0}, {1, 1}));
  EXPECT_NE(window.lbl_feladat.Caption.find(u"szomszédos"), Text::npos);
  EXPECT_TRUE(window.képnév[0].Tag.starts_with(u"en"));
}

TEST_F(KnightSettingsTest, TheFactoryFileIsReadWhereTheUserHasNoneAndNeverWritten) {
  const Text lines =
      u" 6 \r\n 6 \r\n 6 \r\n 1 \r\n 2 \r\n 0 \r\n 1 \r\n\".\"\r\n 0 \r\n 0 \r\nTrue\r\nFalse\r\nTrue\r\n"
      u"False\r\n";
  put_app_file(factory, lines);
  auto& window = plain_game();
  EXPECT_EQ(values(), "6 6 6 1 0 1 0 0 . 0 2");
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::step(d.udsorokszáma, 1);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(file(u"c:\\cserko\\cserko\\lóugrás.ini"), to_utf8(lines));
  hand::click(window.mnu_fájl_kilép);
  end_session();
  start_session();
  open<frm_lóugrás>();
  EXPECT_EQ(values(), "7 6 6 1 0 1 0 0 . 0 2") << "the user's own file comes first";
}

TEST_F(KnightSettingsTest, CancelBringsTheStoredValuesBackAndLeavesTheBoard) {
  auto& window = game({.rows = 7, .columns = 9});
  const std::string before = along_path(window);
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::step(d.udoszlopokszáma, -1);
    hand::click(d.optszabály[1]);
    hand::write(d.txt_töltelékkarakter, u"x");
    hand::click(d.chk_segítség_engedélyezése);
    hand::key(d, key::escape);
  });
  EXPECT_EQ(values(), "7 9 12 4 0 1 0 0 . 0 2");
  EXPECT_FALSE(window.cmd_súgó.Enabled);
  EXPECT_EQ(along_path(window), before);
  EXPECT_TRUE(window.is_move({0, 0}, {1, 2}));
}

TEST_F(KnightSettingsTest, WithoutAFileCancelKeepsWhatWasChangedButTheLanguage) {
  auto& window = plain_game();
  in_dialog(window, [&](frm_lóugrás_beáll& d) {
    hand::step(d.udsorokszáma, -1);
    hand::click(d.optnyelv[4]);
    EXPECT_EQ(window.nyelv(), 4) << "at once";
    hand::click(d.CancelButton);
  });
  EXPECT_EQ(values(), "7 8 12 4 0 1 0 0 . 0 2");
  EXPECT_EQ(window.nyelv(), 2);
}

TEST_F(KnightSettingsTest, TheCloseControlIsCancel) {
  auto& window = game({});
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::step(d.udsorokszáma, -1);
    hand::close(d);
  });
  EXPECT_EQ(values(), defaults);
  EXPECT_FALSE(dialog().visible());
}

// The language.

TEST_F(KnightSettingsTest, TheStoredLanguageDoesNotSurviveTheStart) {
  auto& window = game({.language = 4});
  EXPECT_EQ(window.nyelv(), 2);
  EXPECT_EQ(dialog().optnyelv.chosen(), 2);
  EXPECT_FALSE(window.képnév[0].Tag.starts_with(u"en"));
}

TEST_F(KnightSettingsTest, CancelTakesTheLanguageOfTheFile) {
  auto& window = game({.language = 4});
  in_dialog(window, [](frm_lóugrás_beáll& d) { hand::click(d.CancelButton); });
  EXPECT_EQ(window.nyelv(), 4);
  EXPECT_EQ(dialog().optnyelv.chosen(), 4);
}

TEST_F(KnightSettingsTest, TheFifthLineWinsOverTheOptions) {
  auto& window = game({});
  put_settings(u"lóugrás.ini", {u" 8 ", u" 8 ", u" 12 ", u" 4 ", u" 4 ", u" 0 ", u" 1 ", u"\".\"", u" 0 ", u" 0 ",
                                u"True", u"False", u"True", u"False"});
  in_dialog(window, [](frm_lóugrás_beáll& d) { hand::click(d.CancelButton); });
  EXPECT_EQ(window.nyelv(), 4);
  EXPECT_EQ(values(), "8 8 12 4 0 1 0 0 . 0 4");
}

TEST_F(KnightSettingsTest, TheNextStartIsHungarianAgain) {
  auto& window = plain_game();
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::click(d.optnyelv[4]);
    hand::click(d.OKButton);
  });
  EXPECT_EQ(window.nyelv(), 4);
  hand::click(window.mnu_fájl_kilép);
  EXPECT_EQ(open<frm_lóugrás>().nyelv(), 2);
  EXPECT_EQ(dialog().optnyelv.chosen(), 2);
}

// Damaged files.

TEST_F(KnightSettingsTest, DamagedLinesAreSkipped) {
  put_settings(u"lóugrás.ini", {u" 60 ", u"x", u"", u" 2 ", u" 3 ", u" 7 ", u" 0 ", u"", u" 5 "});
  auto& window = plain_game();
  EXPECT_EQ(values(), "8 8 12 2 0 0 0 0 . 0 2");
  EXPECT_EQ(window.nyelv(), 2);
}

TEST_F(KnightSettingsTest, AnEmptyFileLeavesTheDefaults) {
  put_settings(u"lóugrás.ini", {});
  plain_game();
  EXPECT_EQ(values(), defaults);
}

TEST_F(KnightSettingsTest, WithoutARuleInTheFileItIsTheKnights) {
  put_settings(u"lóugrás.ini", {u" 8 ", u" 8 ", u" 12 ", u" 4 ", u" 2 ", u" 0 ", u" 1 ", u"\".\"", u" 0 ", u" 0 ",
                                u"False", u"False", u"False", u"False"});
  plain_game();
  EXPECT_EQ(values(), defaults);
}

// The character.

TEST_F(KnightSettingsTest, TheBoxAlwaysHoldsOneCharacter) {
  plain_game();
  auto& d = open<frm_lóugrás_beáll>();
  hand::write(d.txt_töltelékkarakter, u"");
  EXPECT_EQ(utf8(d.txt_töltelékkarakter.text()), ".");
  hand::write(d.txt_töltelékkarakter, u"őz");
  EXPECT_EQ(utf8(d.txt_töltelékkarakter.text()), "ő");
  EXPECT_TRUE(d.txt_töltelékkarakter.all_selected());
  input::focus(d.udsorokszáma);
  d.txt_töltelékkarakter.set_text(u"x");
  input::focus(d.OKButton);
  const int before = d.txt_töltelékkarakter.selections();
  input::focus(d.txt_töltelékkarakter);
  EXPECT_EQ(d.txt_töltelékkarakter.selections(), before + 1);
}

TEST_F(KnightSettingsTest, AQuotationMarkAndABlankComeBackFromTheFile) {
  for (const TextView character : {u"\"", u" "}) {
    start_numbering();
    auto& window = plain_game();
    in_dialog(window, [&](frm_lóugrás_beáll& d) {
      hand::write(d.txt_töltelékkarakter, character);
      hand::click(d.OKButton);
    });
    dialog().txt_töltelékkarakter.set_text(u"q");
    dialog().read();
    EXPECT_EQ(utf8(dialog().txt_töltelékkarakter.text()), utf8(character));
    hand::click(window.mnu_fájl_kilép);
  }
}

// The rest.

TEST_F(KnightSettingsTest, TheHintIsAllowedAtOnce) {
  auto& window = plain_game();
  in_dialog(window, [&](frm_lóugrás_beáll& d) {
    hand::click(d.chk_segítség_engedélyezése);
    EXPECT_TRUE(window.cmd_súgó.Enabled);
    hand::click(d.chk_segítség_engedélyezése);
    EXPECT_FALSE(window.cmd_súgó.Enabled);
    hand::click(d.CancelButton);
  });
}

TEST_F(KnightSettingsTest, TheHintIsAllowedInTheNextGameToo) {
  auto& window = game({.hint = true});
  hand::click(window.mnu_fájl_kilép);
  EXPECT_TRUE(open<frm_lóugrás>().cmd_súgó.Enabled);
}

TEST_F(KnightSettingsTest, AnAccessKeyOfALabelLeadsToItsBox) {
  plain_game();
  auto& d = open<frm_lóugrás_beáll>();
  for (const auto& [code, box] : {std::pair{int{'R'}, &d.txtsorokszáma},
                                  {int{'O'}, &d.txtoszlopokszáma},
                                  {int{'X'}, &d.txtszóbetmaxszám},
                                  {int{'P'}, &d.txtképekszáma},
                                  {int{'K'}, &d.txt_töltelékkarakter}}) {
    hand::key(d, code, shift::alt);
    EXPECT_EQ(d.focus(), box) << utf8(box->Name);
  }
  EXPECT_EQ(utf8(accessible_name(d.txtsorokszáma)), "Sorok száma:");
}

TEST_F(KnightSettingsTest, EveryAccessKeyIsThereOnce) {
  plain_game();
  std::string keys;
  for (const Element* element : dialog().elements()) {
    if (const char16_t mark = mnemonic(element->Caption); mark != 0) {
      EXPECT_EQ(keys.find(static_cast<char>(mark)), std::string::npos) << utf8(element->Caption);
      keys += static_cast<char>(mark);
    }
  }
  EXPECT_EQ(keys.size(), 13U);
}

TEST_F(KnightSettingsTest, HelpByButtonAndKey) {
  auto& window = plain_game();
  in_dialog(window, [](frm_lóugrás_beáll& d) {
    hand::click(d.cmd_súgó);
    hand::key(d, key::f1);
    hand::click(d.CancelButton);
  });
  expect_help_twice("Lóugrás  - Beállítások.mht");
}

} // namespace
} // namespace cserko
