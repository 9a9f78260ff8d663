// The exercises on the headless machine, with records whose every field is written down in the test.
#pragma once

#include "core/exercise.h"
#include "core/frame.h"
#include "core/frm_főablak.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/message_panels.h"
#include "platform/element_array.h"
#include "tests/players/headless_hand.h"
#include "tests/players/played_exercise.h"
#include "tests/suite/suite_fixture.h"

#include <algorithm>

namespace cserko {

/// One record as its file has it; a field that is left empty is empty in the file too.
struct Entry {
  Text név;
  Text szótagolt{};
  Text angol{};
  Text meghatározás{};
  Text igaz{};
  Text hamis{};
  bool has_picture = true;
};

class ExerciseTest : public SuiteTest {
 protected:
  ExerciseTest() { put_app_file(u"dicskép\\one.wmf"); }

  /// The next record is the first again.
  void start_numbering() { entries_ = 0; }

  /// Puts the record with the next index into the pack: the first has the file name 1 and the index 0.
  void put(const Entry& entry) {
    const Text base = u"kepek\\" + to_text(++entries_);
    Text content;
    for (const Text& line : {Text(u"x"), entry.név, Text(u"x"), entry.angol, entry.szótagolt, entry.meghatározás,
                             entry.igaz, entry.hamis}) {
      content += line + u"\r\n";
    }
    put_app_file(base + u".wms", content);
    if (entry.has_picture) put_app_file(base + u".wmf", u"picture");
  }
  void put(std::initializer_list<Entry> entries) {
    for (const Entry& entry : entries) put(entry);
  }
  /// Puts records of which all can be drawn, and no other: the last record of a pack never is, so one more follows,
  /// whose fields are the given ones.
  void put_only(std::initializer_list<Entry> drawn, const Entry& never_drawn = {.név = u"utolsó"}) {
    put(drawn);
    put(never_drawn);
  }
  static std::string picture_path(int index) { return "c:\\cserko\\kepek\\" + std::to_string(index + 1) + ".wmf"; }
  /// The file that a box shows, "(none)" where it shows none.
  static std::string picture(const PictureBox& box) { return box.Picture ? utf8(box.Picture->path()) : "(none)"; }

  /// The event sounds of the lists: one file for a right answer, one for a wrong one.
  void put_answer_sounds() {
    put_sounds({u"good.wav", u"bad.wav"});
    auto& settings = load<frm_hangbeáll>();
    settings.lst_helyeshang.Items = {u"good.wav"};
    settings.Lst_hibahang.Items = {u"bad.wav"};
    forget_commands();
  }
  static std::string sound(const std::string& path) {
    return "open \"" + path + "\" type waveaudio alias hang\nplay hang \n";
  }
  static inline const std::string good_sound = sound("c:\\cserko\\\\hangok\\good.wav");
  static inline const std::string bad_sound = sound("c:\\cserko\\\\hangok\\bad.wav");

  /// How often a sound was begun, by the bare name of its file.
  int begun(TextView file) {
    const Text end = u"\\" + Text(file) + u"\" type waveaudio alias hang";
    const auto& all = machine.media().commands;
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [&](const Text& command) { return command.ends_with(end); }));
  }

  /// Plays from the start of the program until so many sets are solved, then leaves.
  void play(Player& player, int sets) {
    HeadlessHand hand(machine);
    machine.deed_time = 20;
    machine.user = [&](Window& top) {
      // What the last set has brought up is still to be closed; only the direction panel asks on and on.
      const bool in_between = dynamic_cast<ExerciseWindow*>(&top) == nullptr &&
                              dynamic_cast<frm_főablak*>(&top) == nullptr && top.Name != u"frm_irányválasztó";
      if (player.sets() < sets || in_between) return player.step(top, hand);
      hand::close(top);
      return true;
    };
    session().Main();
    EXPECT_EQ(player.sets(), sets);
    EXPECT_TRUE(machine.ended());
  }

  /// The sounds tell what the exercise itself thought of the answers: a right one for each task, and a wrong one each
  /// time that the player meant to be. Needs `put_answer_sounds`.
  void expect_judged(const PlayedExercise& exercise, const Player& player) {
    const SoundsBegun ears(*this);
    if (exercise.heard_right != nullptr) {
      EXPECT_EQ(exercise.heard_right(ears), exercise.tasks * player.sets());
    }
    if (exercise.heard_wrong != nullptr) {
      EXPECT_EQ(exercise.heard_wrong(ears), player.wrong_answers());
    }
  }

  /// Presses the button of the next congratulation.
  void then_close_congratulation() {
    then_in<frm_gratuláció>([this](frm_gratuláció& panel) {
      ++congratulations;
      if (seen_at_congratulation) seen_at_congratulation();
      hand::click(panel.cmd_ok);
    });
  }
  int congratulations = 0;
  std::function<void()> seen_at_congratulation;

  /// A window of the class as it is designed, neither loaded nor scaled.
  template<class W> std::unique_ptr<W> designed() { return std::make_unique<W>(session()); }
  /// Expects an element of the loaded window to have the design's size times the scale that the factor gives.
  template<class W> void expect_scaled(const W& window, double factor, TextView element) {
    const auto model = designed<W>();
    model->set_inner_size(model->design_size());
    ablak_méretezés(*model, factor);
    EXPECT_EQ(place_of(*window.find(element)), place_of(*model->find(element)));
    EXPECT_EQ(window.Left + window.Width / 2, machine.screen_size().width / 2);
    EXPECT_EQ(window.Top + window.Height / 2, machine.screen_size().height / 2);
  }

  /// The one page of the help that was opened.
  std::string help_page() const {
    if (machine.processes.size() != 1) return "(" + std::to_string(machine.processes.size()) + " pages)";
    return utf8(machine.processes[0].command_line);
  }
  /// Expects nothing but that page to have been opened, twice: by the mouse and by a key.
  void expect_help_twice(const std::string& page) const {
    EXPECT_EQ(machine.processes.size(), 2U);
    for (const auto& process : machine.processes) EXPECT_EQ(utf8(process.command_line), help_command(page));
  }
  static std::string help_command(const std::string& page) {
    return "c:\\cserko\\tintabrowser.exe c:\\cserko\\cserko\\help\\" + page;
  }

  template<class T> static std::vector<std::string> captions(const ElementArray<T>& elements) {
    std::vector<std::string> all;
    elements.each([&](const T& element) { all.push_back(utf8(element.Caption)); });
    return all;
  }
  static std::vector<std::string> pictures(const ElementArray<PictureBox>& boxes) {
    std::vector<std::string> all;
    boxes.each([&](const PictureBox& box) { all.push_back(picture(box)); });
    return all;
  }
  static std::vector<std::string> nothing(int count) {
    return std::vector<std::string>(static_cast<std::size_t>(count), "");
  }
  static std::vector<std::string> no_pictures(int count) {
    return std::vector<std::string>(static_cast<std::size_t>(count), "(none)");
  }
  template<class T> static std::vector<Rect> places_of(const ElementArray<T>& elements) {
    std::vector<Rect> all;
    elements.each([&](const T& element) { all.push_back(place_of(element)); });
    return all;
  }

 private:
  class SoundsBegun : public Ears {
   public:
    explicit SoundsBegun(ExerciseTest& test) : test_(test) {}
    int heard(TextView file) const override { return test_.begun(file); }
    int heard_right() const override { return heard(u"good.wav"); }
    int heard_wrong() const override { return heard(u"bad.wav"); }

   private:
    ExerciseTest& test_;
  };

  int entries_ = 0;
};

} // namespace cserko
