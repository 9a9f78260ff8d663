// The panel of solved tasks in all its forms, and the hint.
#include "feedback/result_panel.h"
#include "tests/exercises/exercise_fixture.h"

#include <algorithm>

namespace cserko {
namespace {

struct LabelledWindow : PlainWindow {
  explicit LabelledWindow(Session& session)
      : PlainWindow(session, u"labelled"), results(session, pictures, labels, ResultPanel::Fit::OneLine) {
    pictures.design_places({{0, 0}, {1000, 0}, {2000, 0}});
    labels.design_places({{0, 900}, {1000, 900}, {2000, 900}});
  }
  PictureBox shown{*this, u"shown", {0, 1500, 900, 900}};
  ElementArray<PictureBox> pictures{*this, u"pictures", {0, 0, 900, 900}};
  ElementArray<Label> labels{*this, u"labels", {0, 900, 900, 300}};
  ResultPanel results;
};

struct DrawnWindow : PlainWindow {
  explicit DrawnWindow(Session& session) : PlainWindow(session, u"drawn"), results(session, pictures) {
    pictures.design_places({{0, 0}, {1000, 0}, {2000, 0}});
    results.clear();
  }
  ElementArray<PictureBox> pictures{*this, u"pictures", {0, 0, 900, 900}};
  ResultPanel results;
};

class ResultPanelTest : public ExerciseTest {
 protected:
  ResultPanelTest() {
    put({{.név = u"alma", .szótagolt = u"al-ma", .angol = u"apple"},
         {.név = u"kutya", .szótagolt = u"ku-tya", .angol = u"dog"},
         {.név = u"hal", .szótagolt = u"hal", .angol = u"fish", .has_picture = false}});
    start();
  }
  static std::vector<std::string> tags(const ElementArray<PictureBox>& boxes) {
    std::vector<std::string> all;
    boxes.each([&](const PictureBox& box) { all.push_back(utf8(box.Tag)); });
    return all;
  }
  static bool prints(PictureBox& box, const std::string& text) {
    const std::vector<Text> texts = drawn(box).texts();
    return std::any_of(texts.begin(), texts.end(), [&](const Text& printed) { return utf8(printed) == text; });
  }
};

TEST_F(ResultPanelTest, APictureAndItsTextGoToTheLowestFreePlace) {
  auto& window = open<LabelledWindow>();
  window.results.add(0, u"al-ma");
  window.results.add(1, u"ku-tya");
  EXPECT_EQ(pictures(window.pictures), (std::vector<std::string>{picture_path(0), picture_path(1), "(none)"}));
  EXPECT_EQ(captions(window.labels), (std::vector<std::string>{"al-ma", "ku-tya", ""}));
  window.labels[0].Caption.clear();
  window.results.add(1, u"ku-tya");
  EXPECT_EQ(captions(window.labels), (std::vector<std::string>{"ku-tya", "ku-tya", ""}));
}

TEST_F(ResultPanelTest, APictureThatIsNoRecordsIsTakenFromItsBox) {
  put_app_file(u"irkep\\nyíl_fel.wmf");
  auto& window = open<LabelledWindow>();
  window.shown.Picture = machine.load_picture(u"c:\\cserko\\irkep\\nyíl_fel.wmf");
  window.results.add(window.shown, u"fel");
  EXPECT_EQ(picture(window.pictures[0]), "c:\\cserko\\irkep\\nyíl_fel.wmf");
  EXPECT_EQ(utf8(window.labels[0].Caption), "fel");
  // A box whose picture could not be drawn shows a placeholder, and so does its place.
  window.shown.Picture = nullptr;
  window.results.add(window.shown, u"le");
  EXPECT_EQ(picture(window.pictures[1]), "(none)");
  EXPECT_TRUE(prints(window.pictures[1], "le"));
}

TEST_F(ResultPanelTest, PicturesAloneCarryTheirNameAndTheirRecord) {
  auto& window = open<DrawnWindow>();
  EXPECT_EQ(tags(window.pictures), (std::vector<std::string>{"-1", "-1", "-1"}));
  window.results.add_drawn(1, {.körvonalas = true, .angol = true});
  EXPECT_EQ(tags(window.pictures), (std::vector<std::string>{"1", "-1", "-1"}));
  EXPECT_TRUE(prints(window.pictures[0], "dog"));
  window.results.add_drawn(0, {.szótagolt = true});
  EXPECT_TRUE(prints(window.pictures[1], "al-ma"));
  EXPECT_EQ(tags(window.pictures), (std::vector<std::string>{"1", "0", "-1"}));
}

TEST_F(ResultPanelTest, AFullPanelIsShownCongratulatedAndEmptied) {
  auto& window = open<DrawnWindow>();
  then_close_congratulation();
  int redraws_before = 0;
  seen_at_congratulation = [&] {
    EXPECT_EQ(tags(window.pictures), (std::vector<std::string>{"0", "1", "2"}));
    EXPECT_GT(machine.redraws, redraws_before);
  };
  window.results.add_drawn(0, {});
  window.results.add_drawn(1, {});
  redraws_before = machine.redraws;
  window.results.add_drawn(2, {});
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(tags(window.pictures), (std::vector<std::string>{"-1", "-1", "-1"}));
  EXPECT_EQ(pictures(window.pictures), no_pictures(3));
}

TEST_F(ResultPanelTest, TheExerciseMaySayWhatFollowsAFullPanel) {
  auto& window = open<LabelledWindow>();
  std::vector<std::string> order;
  then_close_congratulation();
  seen_at_congratulation = [&] { order.emplace_back("congratulation"); };
  window.results.Full = [&] {
    order.emplace_back("full");
    window.results.clear();
  };
  for (int i = 0; i < 3; ++i) window.results.add(i, u"x");
  EXPECT_EQ(order, (std::vector<std::string>{"congratulation", "full"}));
  EXPECT_EQ(captions(window.labels), nothing(3));
  EXPECT_EQ(pictures(window.pictures), no_pictures(3));
}

TEST_F(ResultPanelTest, ALabelledPanelMayHaveTheNamesDrawnToo) {
  auto& window = open<LabelledWindow>();
  window.results.add_drawn(0, {.körvonalas = true}, u"Piros gyümölcs.");
  EXPECT_TRUE(prints(window.pictures[0], "alma"));
  EXPECT_EQ(utf8(window.labels[0].Caption), "Piros gyümölcs.");
}

TEST_F(ResultPanelTest, AHintShowsTheRecordsPictureWithTheGivenWord) {
  std::string said;
  then_in<üzenet>([&](üzenet& panel) {
    said = utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép);
    hand::click(panel.Command1);
  });
  show_hint(session(), 1, u"dog");
  EXPECT_EQ(said, "dog " + picture_path(1));
  EXPECT_FALSE(session().loaded<üzenet>());
}

TEST_F(ResultPanelTest, AHintShowsWhatABoxShows) {
  auto& window = open<LabelledWindow>();
  window.shown.Picture = machine.load_picture(u"c:\\cserko\\kepek\\1.wmf");
  std::vector<std::string> said;
  const auto note = [&](üzenet& panel) {
    said.push_back(utf8(panel.üzenet_szöveg.Caption) + " " + picture(panel.üzenet_kép));
    hand::click(panel.Command1);
  };
  then_in<üzenet>(note);
  show_hint(session(), window.shown, u"alma");
  window.shown.Picture = nullptr;
  then_in<üzenet>([&](üzenet& panel) {
    EXPECT_TRUE(prints(panel.üzenet_kép, "hal")) << "the placeholder";
    note(panel);
  });
  show_hint(session(), window.shown, u"hal");
  EXPECT_EQ(said, (std::vector<std::string>{"alma " + picture_path(0), "hal (none)"}));
}

} // namespace
} // namespace cserko
