// Lists in which several entries can be selected.
#include "tests/platform/fixture.h"

namespace cserko {
namespace {

class SeveralEntries : public PlatformTest {
 protected:
  SeveralEntries() {
    list.MultiSelect = true;
    list.Items = {u"a-á", u"b-d", u"c-cs", u"f-v", u"g-gy"};
    list.Click = [this] { ++clicks; };
  }

  void begin() {
    show();
    input::focus(list);
  }

  std::vector<int> selected() const {
    std::vector<int> found;
    for (int i = 0; i < list.count(); ++i) {
      if (list.is_selected(i)) found.push_back(i);
    }
    return found;
  }

  ListBox list{window, u"lst_betűpár", {0, 0, 2000, 1500}};
  int clicks = 0;
};

using Entries = std::vector<int>;

TEST_F(SeveralEntries, EachClickTurnsItsEntryOver) {
  begin();
  hand::select(list, 1);
  hand::select(list, 3);
  EXPECT_EQ(selected(), (Entries{1, 3}));
  hand::select(list, 1);
  EXPECT_EQ(selected(), Entries{3});
  EXPECT_EQ(list.selected_count(), 1);
  hand::select(list, 4, shift::control);
  EXPECT_EQ(selected(), (Entries{3, 4}));
  EXPECT_EQ(clicks, 4);
}

TEST_F(SeveralEntries, AClickWithShiftGivesAllOnTheWayTheSameState) {
  begin();
  hand::select(list, 1);
  hand::select(list, 3, shift::shift);
  EXPECT_EQ(selected(), (Entries{1, 2, 3}));
  hand::select(list, 3);
  hand::select(list, 0, shift::shift);
  EXPECT_EQ(selected(), Entries{}) << "the last one touched lost its selection, so all lose it";
  EXPECT_EQ(clicks, 4) << "one click, however many entries";
}

TEST_F(SeveralEntries, AFirstClickWithShiftSelectsFromTheTop) {
  begin();
  hand::select(list, 2, shift::shift);
  EXPECT_EQ(selected(), (Entries{0, 1, 2}));
}

TEST_F(SeveralEntries, KeysMoveWithoutSelectingAndSpaceTurnsOver) {
  begin();
  hand::key(window, key::down);
  hand::key(window, key::down);
  EXPECT_EQ(list.list_index(), 1);
  EXPECT_EQ(clicks, 0);
  hand::key(window, key::space);
  EXPECT_EQ(selected(), Entries{1});
  hand::key(window, key::end, shift::shift);
  EXPECT_EQ(selected(), (Entries{1, 2, 3, 4}));
  hand::key(window, key::home);
  hand::key(window, key::up);
  EXPECT_EQ(list.list_index(), 0);
  hand::key(window, key::space);
  hand::key(window, key::space);
  EXPECT_EQ(selected(), (Entries{1, 2, 3, 4}));
  EXPECT_EQ(clicks, 4);
}

TEST_F(SeveralEntries, AllAreSelectedByCtrlA) {
  begin();
  hand::key(window, 'A', shift::control);
  EXPECT_EQ(list.selected_count(), 5);
  hand::key(window, 'A', shift::control);
  EXPECT_EQ(list.selected_count(), 5);
  EXPECT_EQ(clicks, 1);
}

TEST_F(SeveralEntries, PageKeysStayWithinTheList) {
  begin();
  list.Height = 900;
  hand::key(window, key::home);
  hand::key(window, key::page_down);
  EXPECT_GT(list.list_index(), 0);
  EXPECT_LT(list.list_index(), 4);
  for (int i = 0; i < 5; ++i) hand::key(window, key::page_down);
  EXPECT_EQ(list.list_index(), 4);
  for (int i = 0; i < 5; ++i) hand::key(window, key::page_up);
  EXPECT_EQ(list.list_index(), 0);
}

TEST_F(SeveralEntries, AnEmptyListTakesKeysAndChangesNothing) {
  list.clear();
  begin();
  for (const int code : {key::space, key::down, key::end, int{'A'}}) hand::key(window, code, shift::none);
  hand::key(window, 'A', shift::control);
  EXPECT_EQ(list.list_index(), -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(SeveralEntries, ADisabledListKeepsItsSelection) {
  begin();
  list.Enabled = false;
  hand::select(list, 1);
  hand::key(window, key::space);
  EXPECT_EQ(selected(), Entries{});
}

TEST_F(SeveralEntries, TheProgramSelectsOneByOneOrAllAtOnce) {
  list.set_selected(2, true);
  list.set_selected(2, true);
  EXPECT_EQ(clicks, 1) << "a click where something changes";
  list.set_selection({true, false, true, true, true, true, true});
  EXPECT_EQ(selected(), (Entries{0, 2, 3, 4}));
  EXPECT_EQ(list.selection(), (std::vector<bool>{true, false, true, true, true}));
  list.set_selection({});
  EXPECT_EQ(list.selected_count(), 0);
  EXPECT_EQ(clicks, 3);
  EXPECT_THROW(list.set_selected(5, true), InvalidValue);
  EXPECT_THROW(list.set_selected(-1, true), InvalidValue);
}

TEST_F(SeveralEntries, TheSelectionFollowsItsEntries) {
  list.set_selection({true, true, false, true});
  list.remove(1);
  EXPECT_EQ(selected(), (Entries{0, 2}));
  list.Items.push_back(u"ty-gy");
  EXPECT_FALSE(list.is_selected(4));
  list.clear();
  list.Items = {u"x"};
  EXPECT_EQ(list.selected_count(), 0);
}

TEST_F(SeveralEntries, AListOfOneSelectionTellsItTheSameWay) {
  list.MultiSelect = false;
  EXPECT_EQ(list.selected_count(), 0);
  list.set_list_index(2);
  EXPECT_TRUE(list.is_selected(2));
  EXPECT_EQ(list.selected_count(), 1);
}

} // namespace
} // namespace cserko
