// Knight's jump is played: the hidden path of ten thousand boards leads to the win, and players go astray, are told,
// and take their steps back.
#include "core/frm_főablak.h"
#include "tests/exercises/knight_fixture.h"
#include "tests/players/lóugrás_player.h"

namespace cserko {
namespace {

// A size of the board, by its columns, and a rule. Its boards have all numbers of rows and of pictures in turn.
class EveryBoardTest : public KnightTest, public ::testing::WithParamInterface<std::tuple<int, bool>> {
 protected:
  static constexpr int boards = 720;
};

INSTANTIATE_TEST_SUITE_P(Sizes, EveryBoardTest, ::testing::Combine(::testing::Range(6, 13), ::testing::Bool()),
                         [](const auto& tested) {
                           return std::to_string(std::get<0>(tested.param)) + "Columns" +
                                  (std::get<1>(tested.param) ? "ToNeighbours" : "AsAKnight");
                         });

TEST_P(EveryBoardTest, TheHiddenPathLeadsToTheWin) {
  const auto [columns, neighbours] = GetParam();
  auto& window = game({.columns = columns, .pictures = 1, .neighbours = neighbours});
  auto& settings = load<frm_lóugrás_beáll>();
  int wins = 0;
  machine.user = [&](Window& top) {
    auto* panel = dynamic_cast<frm_gratuláció*>(&top);
    if (panel == nullptr) return false;
    ++wins;
    settings.udsorokszáma.set_value(6 + wins % 3);
    settings.udképekszáma.set_value(1 + wins % 4);
    settings.optnyelv.choose(wins % 5 == 0 ? 4 : 2);
    hand::click(panel->cmd_ok);
    return true;
  };
  while (wins < boards) {
    ASSERT_TRUE(window.has_puzzle());
    const std::vector<Square> path = window.megoldás();
    const int before = wins;
    for (std::size_t i = 1; i < path.size(); ++i) {
      ASSERT_EQ(wins, before);
      const Label& square = window.field(path[i]);
      ASSERT_TRUE(square.Visible && square.Enabled);
      input::click(window.field(path[i]));
    }
    ASSERT_EQ(wins, before + 1);
  }
}

class KnightPlayersTest : public KnightTest {
 protected:
  void astray(PlayMode mode) {
    put_words();
    want({.rows = 6, .columns = 6, .pictures = 2, .hint = true});
    start_session();
    LóugrásPlayer player(session(), mode, 10, 1);
    play(player, 200);
    EXPECT_GE(player.messages(), 180) << "hardly any walk ends where no step is left";
    EXPECT_GE(player.wrong_answers(), 8 * 180) << "all of it was taken back";
    EXPECT_EQ(begun(u"branch.wav"), player.wrong_answers());
    EXPECT_GE(player.hints(), 100);
    EXPECT_GE(player.helps(), 100);
  }
};

TEST_F(KnightPlayersTest, TwoHundredBoardsAreWonAfterAWalkAstrayByMouse) { astray(PlayMode::Mouse); }

TEST_F(KnightPlayersTest, TwoHundredBoardsAreWonAfterAWalkAstrayByKeyboard) { astray(PlayMode::Keyboard); }

} // namespace
} // namespace cserko
