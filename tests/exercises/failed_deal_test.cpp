// A deal that fails ends the puzzle before it: nothing of the old word and nothing half dealt can be played or seen,
// and the next deal that succeeds goes on as if nothing had been.
#include "exercises/boards/frm_képmemória.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/syllables/frm_szótagoló.h"
#include "exercises/template/frm_template.h"
#include "tests/exercises/full_pack_fixture.h"

#include <map>
#include <set>
#include <utility>

namespace cserko {
namespace {

class FailedDealTest : public ExerciseTest {
 protected:
  FailedDealTest() {
    for (const TextView name : {u"alma", u"kutya", u"ház", u"medve", u"szilva", u"béka", u"róka", u"utolsó"}) {
      const Text word(name);
      put({.név = word,
           .szótagolt = word,
           .angol = u"the " + word,
           .meghatározás = u"mi " + word,
           .igaz = u"igaz " + word,
           .hamis = u"hamis " + word});
    }
  }
  template<class W> W& begun() {
    start();
    put_answer_sounds();
    W& window = open<W>();
    EXPECT_TRUE(window.has_puzzle());
    return window;
  }
  /// Asks for a new puzzle when no record is left to draw.
  template<class W> void fail(W& window, MenuItem& new_task) {
    const Records all = session().képek;
    session().képek = Records();
    then_close_message();
    hand::click(new_task);
    EXPECT_EQ(messages_shown, 1);
    EXPECT_FALSE(window.has_puzzle());
    EXPECT_TRUE(window.visible());
    session().képek = all;
    forget_commands();
  }
  /// No word of the pack is as long.
  void ask_for_twelve_letters() {
    auto& dialog = session().window<frm_cserkó_beáll>();
    dialog.udbetszám.set_value(12);
    dialog.opt_betszám[0].set_value(true);
  }
};

TEST_F(FailedDealTest, ScrambledWordGivesTheOldWordAwayNoMore) {
  auto& window = begun<frm_cserkó>();
  ask_for_twelve_letters();
  then_close_message();
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(window.betű.count(), 1);
  EXPECT_FALSE(window.betű[0].Visible);
  for (Button* button : {&window.cmd_kész, &window.cmd_egybetűtfelfed, &window.cmd_rendez, &window.cmd_újrakever}) {
    EXPECT_FALSE(button->Enabled) << utf8(button->Name);
    hand::click(*button);
  }
  // The keys and the frame have no letter to touch.
  for (const int code : {key::space, key::left, key::enter}) hand::key(window, code);
  hand::press(window.kép, 100, 100);
  hand::press(window.kép, 100, 100, MouseButton::Right);
  EXPECT_FALSE(window.betű[0].Visible);
  EXPECT_FALSE(window.betű[0].Border);
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_FALSE(window.lbl_megoldás.Visible);

  session().window<frm_cserkó_beáll>().opt_betszám[1].set_value(true);
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_TRUE(window.cmd_kész.Enabled);
  EXPECT_TRUE(window.betű[0].Visible);
}

TEST_F(FailedDealTest, ScrambledWordsTaskLineKeepsItsTextWhereTheDealBehindItFails) {
  auto& window = begun<frm_cserkó>();
  const Text task = window.lbl_feladat.Caption;
  ask_for_twelve_letters();
  then_close_message();
  input::mouse_down(window.lbl_feladat, {MouseButton::Middle, shift::shift | shift::control | shift::alt, 10, 10});
  EXPECT_EQ(utf8(window.lbl_feladat.Caption), utf8(task));
}

TEST_F(FailedDealTest, PictureMemoryShowsNoCardAndNoTime) {
  put_app_file(u"cserko\\képmem.ini", u" 5 \r\n 12 \r\n 2 \r\n 12 \r\n");
  auto& window = begun<frm_képmemória>();
  machine.advance(5000);
  ASSERT_EQ(utf8(window.időkijelző.Caption), "00:00:05");
  // Three words are enough for some of the cards.
  const Records all = session().képek;
  for (int i = 4; i <= 8; ++i) machine.files().take(Text(HeadlessPlatform::folder) + u"kepek\\" + to_text(i) + u".wms");
  session().képek = Records();
  session().képek.load(machine.files(), session().alapkönyvtár);
  then_close_message();
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  window.kép.each([](const PictureBox& card) {
    EXPECT_FALSE(card.Visible) << card.Index;
    EXPECT_EQ(utf8(card.Tag), "") << card.Index;
  });
  machine.advance(5000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:00");

  session().képek = all;
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_TRUE(window.has_puzzle());
  machine.advance(3000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:03");
}

TEST_F(FailedDealTest, SyllabifierHasNoRowAndNoAnswer) {
  auto& window = begun<frm_szótagoló>();
  session().window<dlg_szótagoló>().chk_egyszótagúak_kizárva.set_value(1);
  then_close_message();
  then_in<dlg_szótagoló>([](dlg_szótagoló& dialog) { hand::click(dialog.OKButton); });
  std::swap(machine.script.front(), machine.script.back());
  hand::click(window.mnu_fájl_beállítások);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(window.betű.count(), 1);
  EXPECT_FALSE(window.betű[0].Visible);
  forget_commands();
  hand::click(window.cmd_kész);
  hand::key(window, key::enter);
  EXPECT_EQ(commands(), "");
}

TEST_F(FailedDealTest, SentenceToPictureHasAnEmptyRing) {
  auto& window = begun<frm_mondatkép>();
  // Three definitions fill a part of the ring.
  const Records all = session().képek;
  for (int i = 4; i <= 8; ++i) machine.files().take(Text(HeadlessPlatform::folder) + u"kepek\\" + to_text(i) + u".wms");
  session().képek = Records();
  session().képek.load(machine.files(), session().alapkönyvtár);
  then_close_message();
  hand::click(window.mnu_újjáték);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(pictures(window.pic_feladványkép), no_pictures(6));
  forget_commands();
  for (int i = 0; i < 6; ++i) hand::click(window.pic_feladványkép[i]);
  EXPECT_EQ(commands(), "");
  session().képek = all;
  hand::click(window.mnu_újjáték);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(FailedDealTest, TrueOrFalseHasNoStatements) {
  auto& window = begun<frm_igazhamis>();
  fail(window, window.mnu_file_új_játék);
  EXPECT_EQ(captions(window.lbl_állítás), nothing(2));
  EXPECT_EQ(picture(window.kép), "(none)");
  for (int i = 0; i < 2; ++i) hand::click(window.lbl_állítás[i]);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_file_új_játék);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(FailedDealTest, TheTemplateHasNoNames) {
  auto& window = begun<frm_template>();
  fail(window, window.mnu_fájl_új_játék);
  EXPECT_EQ(captions(window.lbl_név), nothing(2));
  EXPECT_EQ(picture(window.kép), "(none)");
  for (int i = 0; i < 2; ++i) hand::click(window.lbl_név[i]);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_TRUE(window.has_puzzle());
}

// Every exercise, when all words are gone.

class EachFailedDealTest : public FullPackTest, public ::testing::WithParamInterface<PlayedExercise> {
 protected:
  EachFailedDealTest() {
    GetParam().prepare(machine.files());
    for (int i = 0; i <= session().képek.képszám; ++i) {
      const KépAdat& record = session().képek[i];
      for (const Text* text :
           {&record.név, &record.szótagolt, &record.angol, &record.meghatározás, &record.igaz, &record.hamis})
        if (text->size() > 2) texts_.insert(*text);
    }
    machine.user = [this](Window& top) {
      if (top.Name == u"szövegüzenet") ++messages_;
      answer_window(top);
      return true;
    };
  }

  ExerciseWindow& exercise() { return dynamic_cast<ExerciseWindow&>(session().window(GetParam().window)); }

  /// The records stay as many, and say nothing; pictures are gone.
  void take_all_words_away() {
    for (const TextView folder : {u"kepek\\", u"irkep\\"}) {
      const Text path = Text(app) + Text(folder);
      for (const Text& name : machine.files().list(path + u"*.*")) {
        files_[path + name] = machine.files().read(path + name).value();
        machine.files().take(path + name);
        if (name.ends_with(u".wms")) machine.files().put(path + name, "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
      }
    }
    load_records();
  }
  void bring_all_words_back() {
    for (const auto& [path, bytes] : files_) machine.files().put(path, bytes);
    load_records();
  }

  /// Whatever in the menu leads to a new task: an entry of its own, or the settings and their OK.
  void ask_for_a_task() {
    choose_in_menus([this]() -> Window& { return exercise(); },
                    [](const Element& entry) {
                      return entry.Caption.find(u"Kilép") == Text::npos && entry.container() != nullptr &&
                             entry.container()->Caption != u"&Súgó";
                    });
    // The letter viewer asks where a letter is typed.
    hand::type(exercise(), u"a");
  }
  /// Touches everything that can be touched, by mouse and by keyboard.
  void touch_everything() {
    for (std::size_t i = 0; i < exercise().elements().size(); ++i) {
      Element& element = *exercise().elements()[i];
      if (element.kind() == ElementKind::MenuItem || element.kind() == ElementKind::Timer || !element.shown()) continue;
      try {
        hand::click(element);
        hand::drag(element, 600, 300);
        hand::click(element, MouseButton::Right);
      } catch (const OutOfReach&) {
        // Something else lies over it.
      }
    }
    for (const int code : {key::space, key::enter, key::left, key::up, key::down, key::right, key::enter})
      hand::key(exercise(), code);
    machine.advance(5000);
  }

  /// Picture memory shows nothing before that.
  void turn_a_card() {
    auto* memory = dynamic_cast<frm_képmemória*>(&exercise());
    if (memory == nullptr) return;
    Element* card = nullptr;
    memory->kép.each([&](PictureBox& place) { card = place.shown() ? &place : card; });
    hand::click(*card);
  }

  /// What is still to be seen of any word: its picture, a text of its record, its letters in a row.
  std::string seen_of_words() {
    std::string seen;
    for (const auto& [name, row] : rows_of_texts(seen)) {
      // Tasks and other texts of the window itself may hold a word by chance.
      if (own_texts_.contains({name, row})) continue;
      for (const Text& text : texts_)
        if (row.find(text) != Text::npos) seen += utf8(name) + ": " + utf8(text) + "\n";
    }
    return seen;
  }
  /// What the window says when there is no word at all.
  void learn_own_texts() {
    std::string pictures;
    for (const auto& [name, row] : rows_of_texts(pictures)) own_texts_.insert({name, row});
    EXPECT_EQ(pictures, "");
  }

  int messages_ = 0;

 private:
  void load_records() {
    session().képek = Records();
    session().képek.load(machine.files(), session().alapkönyvtár);
  }
  /// The texts on all elements of one name, one behind the other. Tells of the pictures of words as well.
  std::map<Text, Text> rows_of_texts(std::string& pictures) {
    std::map<Text, Text> rows;
    for (Element* element : exercise().elements()) {
      if (element->kind() == ElementKind::MenuItem || !element->shown()) continue;
      rows[element->Name] += element->Caption;
      if (element->kind() != ElementKind::PictureBox) continue;
      auto& box = static_cast<PictureBox&>(*element);
      const Text path = box.Picture ? box.Picture->path() : Text();
      if (path.find(u"kep\\") != Text::npos || path.find(u"kepek\\") != Text::npos) pictures += utf8(path) + "\n";
      for (const Text& text : drawn(box).texts()) rows[element->Name] += text;
    }
    return rows;
  }
  /// Accepts settings, agrees to a question, and closes anything else.
  static void answer_window(Window& top) {
    for (Element* element : top.elements()) {
      if (element->kind() != ElementKind::Button || !element->shown() || !element->usable()) continue;
      if (static_cast<Button*>(element)->Default || element->Caption == u"&Igen") return hand::click(*element);
    }
    hand::close(top);
  }

  std::set<Text> texts_;
  std::set<std::pair<Text, Text>> own_texts_;
  std::map<Text, std::string> files_;
};

// Tekergő reads the words of its files once and goes on with them; its own tests let its deal fail.
std::vector<PlayedExercise> exercises_of_records() {
  std::vector<PlayedExercise> exercises = played_exercises();
  std::erase_if(exercises, [](const PlayedExercise& exercise) { return exercise.window == u"frmverem"; });
  return exercises;
}

INSTANTIATE_TEST_SUITE_P(Played, EachFailedDealTest, ::testing::ValuesIn(exercises_of_records()),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(EachFailedDealTest, LeavesNothingToPlayAndNothingOfTheOldWord) {
  take_all_words_away();
  machine.show(exercise());
  learn_own_texts();
  session().unload(exercise());
  bring_all_words_back();
  machine.show(exercise());
  ASSERT_TRUE(exercise().has_puzzle());
  turn_a_card();
  ASSERT_NE(seen_of_words(), "") << "else nothing is found below either";

  take_all_words_away();
  messages_ = 0;
  ask_for_a_task();
  // Where a word of no letters passes, or a letter without words, the task is an empty one and nobody is told.
  EXPECT_EQ(exercise().has_puzzle(), messages_ == 0);
  EXPECT_EQ(seen_of_words(), "");

  touch_everything();
  EXPECT_EQ(seen_of_words(), "");
  if (messages_ > 0) {
    EXPECT_EQ(begun(u"good.wav"), 0);
  }
  EXPECT_TRUE(exercise().visible());

  // These two remember what the pack lacks: pictures that cannot be drawn, letters that no word has.
  if (GetParam().window == u"frm_merremutat" || GetParam().window == u"frm_hosszrövid") return;
  bring_all_words_back();
  ask_for_a_task();
  EXPECT_TRUE(exercise().has_puzzle());
  turn_a_card();
  EXPECT_NE(seen_of_words(), "");
}

} // namespace
} // namespace cserko
