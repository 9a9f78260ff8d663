#include "tests/players/párosító_player.h"

#include "tests/players/played_exercise.h"

namespace cserko {

namespace {

// A bent line from the middle of a box to the middle of another.
void draw_line(PictureBox& from, const PictureBox& to, Hand& hand) {
  const Point start{from.Width / 2, from.Height / 2};
  const Point end{to.Left + to.Width / 2 - from.Left, to.Top + to.Height / 2 - from.Top};
  const Point bend{(start.x + 2 * end.x) / 3, (2 * start.y + end.y) / 3};
  hand.draw(from, {start, bend, end});
}

int gathered(Window& window, const Player& /*player*/) { return paired(dynamic_cast<frm_párosító&>(window)); }

} // namespace

int paired(const frm_párosító& exercise) {
  int pairs = 0;
  for (int i = 0; i < exercise.pic_feladvány.count(); ++i) pairs += exercise.párosítva(i) ? 1 : 0;
  return pairs;
}

bool PárosítóPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_párosító&>(window);
  const int rows = exercise.pic_feladvány.count();
  const int task = sets() * (rows + 1) + paired(exercise);
  PictureBox* picture = nullptr;
  exercise.pic_feladvány.each([&](PictureBox& box) {
    const bool better = picture == nullptr || (box.Selected && !picture->Selected);
    if (box.Enabled && box.Tag != u"-1" && better) picture = &box;
  });
  if (picture == nullptr) return false;
  PictureBox* right = nullptr;
  PictureBox* wrong = nullptr; // one that can be chosen
  exercise.lbl_feladvány.each([&](PictureBox& box) {
    if (box.Tag == picture->Tag) {
      right = &box;
    } else if (box.Enabled) {
      wrong = &box;
    }
  });
  if (right == nullptr) return false;
  // The last pair leaves nothing to be mistaken about: the next set makes up for it.
  owes_mistake_ = mistake_due(task) || owes_mistake_;
  bool err = owes_mistake_ && wrong != nullptr;
  if (!err) forgo_mistake();
  Way way = by_mouse() ? static_cast<Way>(task % 3) : Way::Choosing;
  if (way == Way::FromDefinition && !may_begin(err ? *wrong : *right, *picture)) way = Way::FromPicture;
  // Where an earlier line has taken the right one, only a drawn line leads there.
  if (way == Way::Choosing && !right->Enabled && wrong != nullptr) err = true;
  join(*picture, err ? *wrong : *right, way, err, hand);
  return true;
}

// Where lines are checked late, one from a definition takes those out of play that stand across from its ends. If these
// two belong together, nothing can join them any more, and the full board starts over, again and again. Only a level
// line takes none but its own ends.
bool PárosítóPlayer::may_begin(const PictureBox& definition, const PictureBox& picture) {
  const bool at_once = session_.window<frm_párosító_beáll>().Option_ellenőr[0].value();
  return definition.Enabled && (at_once || definition.Index == picture.Index);
}

void PárosítóPlayer::join(PictureBox& picture, PictureBox& definition, Way way, bool err, Hand& hand) {
  bool joined = true;
  if (way == Way::FromPicture) {
    draw_line(picture, definition, hand);
  } else if (way == Way::FromDefinition) {
    draw_line(definition, picture, hand);
  } else if (!picture.Selected) {
    choose(picture, hand);
    joined = false;
  } else {
    joined = choose(definition, hand);
  }
  if (!joined || !err) return;
  mistake_made();
  owes_mistake_ = false;
}

namespace {

const Played played{{.name = "sentence_pairing",
                     .window = u"frm_párosító",
                     .tasks = 5,
                     .make = make_player<PárosítóPlayer>,
                     .gathered = gathered,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds,
                     .prepare = [](Files& files) {
                       // Every line is checked at once.
                       write_user_settings(files, u"paros.ini", "True\r\n");
                     }}};

} // namespace

} // namespace cserko
