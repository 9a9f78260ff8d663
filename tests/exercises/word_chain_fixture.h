// Games of Word chain whose chain the test knows: by syllables each word is followed by one other alone.
#pragma once

#include "exercises/boards/frm_szólánc.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

/// Settings of a game, in the order of the file.
struct WantedChain {
  int type = 0;
  int letters = 12;
  int pictures = 7;
  bool first_shown = false;
  bool help = true;
  bool syllables = false;
  bool halo = true;
};

class WordChainTest : public ExerciseTest {
 protected:
  /// The chain of the records 0 to 6, and words behind it that belong to no chain.
  void put_chain(int others = 0) {
    for (const auto& [name, syllables] : {std::pair{u"dobbe", u"dob-be"},
                                          {u"becica", u"be-ci-ca"},
                                          {u"cado", u"ca-do"},
                                          {u"dofu", u"do-fu"},
                                          {u"fuga", u"fu-ga"},
                                          {u"gahé", u"ga-hé"},
                                          {u"héja", u"hé-ja"}})
      put({.név = name, .szótagolt = syllables, .angol = u"x"});
    for (int i = 0; i < others; ++i)
      put({.név = u"rest" + Text(1, static_cast<char16_t>(u'a' + i)), .szótagolt = u"rest" + to_text(i)});
    put({.név = u"utolsó", .szótagolt = u"u-tol-só"});
  }
  void put_settings_of(const WantedChain& wanted) {
    const auto number = [](int value) { return u" " + to_text(value) + u" "; };
    const Text lines[]{wanted.type == 0 ? u"True" : u"False",
                       wanted.type == 1 ? u"True" : u"False",
                       wanted.type == 2 ? u"True" : u"False",
                       number(wanted.letters),
                       number(wanted.pictures),
                       number(wanted.first_shown ? 1 : 0),
                       number(wanted.help ? 1 : 0),
                       number(wanted.syllables ? 1 : 0),
                       number(wanted.halo ? 1 : 0)};
    Text content;
    for (const Text& line : lines) content += line + u"\r\n";
    machine.files().put(Text(user_folder) + u"szólánc.ini", to_cp1250(content));
  }
  /// What chance gives for the chain from record 0 on, where each word is followed by one alone: the start, and for
  /// each further word the number that is dropped and the place in the rotation.
  void script_chain(int start = 0) {
    machine.script_random({record(start)});
    machine.script_random(std::vector<double>(12, 0.5));
  }
  /// What chance gives for the shuffle of seven pictures: they come to lie as `shuffled`.
  void script_shuffle() { machine.script_random({drawing(1, 7), drawing(3, 7), drawing(5, 7), drawing(0, 7)}); }
  static inline const std::vector<std::string> shuffled{"6", "0", "3", "2", "5", "4", "1"};

  /// A game of seven pictures.
  frm_szólánc& deal(const WantedChain& wanted = {}) {
    if (session_started_) throw std::logic_error("dealt twice");
    session_started_ = true;
    put_settings_of(wanted);
    start();
    script_chain();
    script_shuffle();
    return open<frm_szólánc>();
  }

  /// Closes the next panel that tells what a picture is, and notes its word and picture.
  void then_note_hint() {
    then_in<üzenet>([this](üzenet& panel) {
      told.push_back(utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép));
      hand::click(panel.Command1);
    });
  }
  std::vector<std::string> told;

  /// The picture of the pool with that record.
  static PictureBox& pool(frm_szólánc& window, int record) {
    for (int i = 0; i < frm_szólánc::most_pictures; ++i) {
      if (window.kép[i].Tag == to_text(record)) return window.kép[i];
    }
    throw std::logic_error("no such picture");
  }
  static void drag(frm_szólánc& window, int record, int place) {
    PictureBox& target = window.pic_eredménykép[place];
    const Point corner = target.position_in_window();
    PictureBox& source = pool(window, record);
    hand::drag_to(source, {source.Width / 3, source.Height / 3},
                  {corner.x + target.Width / 2, corner.y + target.Height / 2});
  }
  static std::vector<std::string> tags(const ElementArray<PictureBox>& boxes, int count = chain_length) {
    std::vector<std::string> all;
    for (int i = 0; i < count; ++i) all.push_back(utf8(boxes[i].Tag));
    return all;
  }
  static std::vector<std::string> row(const frm_szólánc& window) { return tags(window.pic_eredménykép); }
  static std::vector<std::string> row_of(std::initializer_list<int> records) {
    std::vector<std::string> all;
    for (const int record : records) all.push_back(std::to_string(record));
    return all;
  }

 private:
  bool session_started_ = false;
};

} // namespace cserko
