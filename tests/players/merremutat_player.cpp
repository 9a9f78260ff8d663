#include "tests/players/merremutat_player.h"

#include "exercises/syllables/frm_merremutat.h"
#include "tests/players/played_exercise.h"
#include "tests/players/strip.h"

#include <map>

namespace cserko {

namespace {

// What a child says of the picture of that file.
TextView direction_of(const Text& path) {
  static const std::map<TextView, TextView> words{
      {u"bal", u"balra"}, {u"fel", u"fel"}, {u"jobb", u"jobbra"}, {u"le", u"le"}};
  const TextView name = TextView(path).substr(path.rfind(u'_') + 1);
  const auto found = words.find(name.substr(0, name.rfind(u'.')));
  return found == words.end() ? TextView() : found->second;
}

} // namespace

bool MerremutatPlayer::play(Window& window, Hand& hand) {
  auto& exercise = dynamic_cast<frm_merremutat&>(window);
  if (!exercise.kép.Picture) return false;
  const TextView direction = direction_of(exercise.kép.Picture->path());
  Button* right = nullptr;
  Button* wrong = nullptr;
  exercise.cmd_irány.each([&](Button& button) {
    if (button.shown()) (button.Caption == direction ? right : wrong) = &button;
  });
  if (right == nullptr || wrong == nullptr) return false;
  const bool err = mistake_due(task_number(exercise.lbl_eredmény, sets()));
  if (choose(err ? *wrong : *right, hand) && err) mistake_made();
  return true;
}

namespace {

const Played played{{.name = "which_way",
                     .window = u"frm_merremutat",
                     .tasks = 6,
                     .make = make_player<MerremutatPlayer>,
                     .gathered = gathered_on_strip<frm_merremutat>,
                     .heard_right = right_sounds,
                     .heard_wrong = wrong_sounds}};

} // namespace

} // namespace cserko
