#include "exercises/letters/frm_betűválogatás.h"

#include "core/animation.h"
#include "core/numbers.h"
#include "exercises/shared/frm_irányválasztó.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <set>

namespace cserko {

namespace {

constexpr int places_each = frm_betűválogatás::places / 2;

constexpr TextView marker = u"Label2"; // the word in play where none has been dealt: nothing was solved
constexpr TextView waiting = u"1";     // the word of that place still waits in the round
constexpr TextView done = u"0";
constexpr TextView between_letters = u" - ";

constexpr TextView direction_task = u"Kattints a jó irány nevére az irányválasztás panelen!";

int side_of(int place) { return place < places_each ? 0 : 1; }

Rect place_of(const Element& element) { return {element.Left, element.Top, element.Width, element.Height}; }

void put(Element& element, const Rect& place) {
  element.move_to(place.left, place.top);
  element.Width = place.width;
  element.Height = place.height;
}

Text too_few_words(TextView pair) {
  return u"Ehhez a betűpárhoz nincs elég szavunk: " + Text(pair) +
         u"\r\nKérlek, engedj meg a beállításokban hosszabb szavakat, vagy ne jelöld ki ezt a betűpárt!";
}

Text no_pair(bool any_listed) {
  if (!any_listed) return u"A program nem találja a betűpárok listáját (betűpár.kvl).";
  return u"Nincs kijelölve egyetlen betűpár sem.\r\nKérlek, jelölj ki legalább egyet a beállításokban!";
}

/// To which of two letters a word belongs: it has that one and not the other, and is not too long. What has been found
/// out is kept, for where few words fit the same ones are drawn very often.
class Sides {
 public:
  Sides(const Records& records, WordForm form, int longest, const Text& left, const Text& right)
      : records_(records),
        form_(form),
        longest_(longest),
        left_(left),
        right_(right),
        sides_(static_cast<std::size_t>(records.képszám) + 1, unknown) {}

  bool belongs(int index, int letter) {
    std::int8_t& side = sides_[static_cast<std::size_t>(index)];
    if (side == unknown) side = side_of_word(index);
    return side == letter;
  }

 private:
  static constexpr std::int8_t unknown = -1;
  static constexpr std::int8_t neither = 2;

  std::int8_t side_of_word(int index) const {
    if (records_.MAGYARBETŰKSZÁMA(index, form_) > longest_) return neither;
    const bool left = records_.vanebenne(index, left_, form_);
    const bool right = records_.vanebenne(index, right_, form_);
    if (left == right) return neither;
    return left ? 0 : 1;
  }

  const Records& records_;
  WordForm form_;
  int longest_;
  const Text& left_;
  const Text& right_;
  std::vector<std::int8_t> sides_;
};

} // namespace

frm_betűválogatás::frm_betűválogatás(Session& session)
    : ExerciseWindow(session, u"frm_betűválogatás", {11415, 7695}, u"Cserkó - Betűválogató") {
  betű[0].Choosable = true;
  betű[0].Opaque = true;
  betű[0].Border = true;
  betű.design(1, {9120, 120, 1500, 1695}, u"sz");
  kép.TabStop = false;
  eredménykép[0].TabStop = false;
  eredménykép.design_places({{120, 1920},
                             {1560, 1920},
                             {120, 3840},
                             {1560, 3840},
                             {120, 5760},
                             {1560, 5760},
                             {8520, 1920},
                             {9960, 1920},
                             {8520, 3840},
                             {9960, 3840},
                             {8520, 5760},
                             {9960, 5760}});
  eredményképnév.design_places({{120, 3360},
                                {1560, 3360},
                                {120, 5280},
                                {1560, 5280},
                                {120, 7200},
                                {1560, 7200},
                                {8520, 3360},
                                {9960, 3360},
                                {8520, 5280},
                                {9960, 5280},
                                {8520, 7200},
                                {9960, 7200}});
  eredményképnév.each([](Label& name) { name.WordWrap = false; });
  kép.bring_to_front(); // it flies over the places
  betű.Click = [this](int letter) { answer(letter); };
  mnu_beall_ujjatek.Click = [this] { következő_feladat(); };
  mnubeállítások.Click = [this] { change_settings(); };
  set_dialog<frm_irányválasztó>(DialogAtClose::Goes);
  set_close_entry(mnu_beáll_kilépés);
  set_help_entry(mnu_súgó_súgó, u"Betűválogató - a feladat.mht");
}

void frm_betűválogatás::Load() {
  settings();
  eredménykép.each([](PictureBox& place) { place.Tag = done; });
  fill_screen({&Label1});
  deal_first([this] { következő_feladat(); });
}

void frm_betűválogatás::következő_feladat() {
  deal([this] {
    if (!round_goes_on()) {
      if (középsőképnév.Caption != marker) platform().show_modal(session().window<frm_gratuláció>());
      draw_round();
    }
    next_picture();
  });
}

void frm_betűválogatás::no_puzzle() {
  betű.each([](Label& letter) { letter.Caption.clear(); });
  for (int i = 0; i < places; ++i) {
    eredménykép[i].Tag = done;
    eredménykép[i].Visible = false;
    eredményképnév[i].Visible = false;
  }
  kép.Visible = false;
  középsőképnév.Visible = false;
  középsőképnév.Caption = marker;
}

bool frm_betűválogatás::round_goes_on() const {
  bool any = false;
  eredménykép.each([&any](const PictureBox& place) { any = any || place.Tag == waiting; });
  return any;
}

void frm_betűválogatás::draw_round() {
  draw_pair();
  draw_words();
}

void frm_betűválogatás::draw_pair() {
  const ListBox& pairs = settings().lst_betűpárok;
  const auto selected = [&pairs](int index) { return index < pairs.count() && pairs.is_selected(index); };
  const int drawn = draw_below(platform(), pairs.count(), selected, no_pair(pairs.count() > 0));
  const Text& pair = pairs.Items[static_cast<std::size_t>(drawn)];
  const auto end = pair.find(between_letters);
  betű[0].Caption = pair.substr(0, end);
  betű[1].Caption = pair.substr(end + between_letters.size());
}

void frm_betűválogatás::draw_words() {
  const WordForm form = word_form(settings().english(), settings().Chk_szótagolva.ticked());
  const Text advice = too_few_words(betű[0].Caption + Text(between_letters) + betű[1].Caption);
  Sides sides(képek(), form, settings().udszóhossz.value(), betű[0].Caption, betű[1].Caption);
  std::set<Text> used;
  for (int i = 0; i < places; ++i) {
    eredménykép[i].Visible = false;
    eredményképnév[i].Visible = false;
    const int record = képek().draw(
        platform(),
        [&](int index) { return sides.belongs(index, side_of(i)) && used.count(képek().word(index, form)) == 0; },
        advice, Records::Reach::All);
    used.insert(képek().word(record, form));
    eredménykép[i].Tag = waiting;
    eredményképnév[i].Caption = képek().word(record, form);
    show_record_picture(session(), eredménykép[i], record);
  }
}

void frm_betűválogatás::next_picture() {
  const int place = draw_below(
      platform(), places, [this](int index) { return eredménykép[index].Tag == waiting; }, Records::general_advice);
  show_picture_of(kép, eredménykép[place], eredményképnév[place].Caption);
  kép.Visible = true;
  középsőképnév.Visible = true;
  szöveg_illesztés(középsőképnév, Text(eredményképnév[place].Caption));
  kép.Tag = to_text(place);
  eredménykép[place].Tag = done;
  fit_letters();
}

// The largest size at which both letters fit their places.
void frm_betűválogatás::fit_letters() {
  cserko::Font font = betű[0].Font;
  font.size = 8;
  const auto overfilling = [&](const Label& letter) {
    return first_overfilling_size(platform(), font, letter.Caption, {letter.Width, letter.Height});
  };
  const double size = std::min(overfilling(betű[0]), overfilling(betű[1])) - 1;
  betű.each([size](Label& letter) { letter.Font.size = size; });
}

void frm_betűválogatás::KeyDown(KeyEvent& event) {
  const int code = event.code;
  if (code != key::left && code != key::right && code != key::escape) {
    ExerciseWindow::KeyDown(event);
    return;
  }
  event.code = 0;
  if (code == key::escape) {
    session().unload(*this);
  } else {
    answer(code == key::left ? 0 : 1);
  }
}

void frm_betűválogatás::answer(int letter) {
  if (!has_puzzle()) return;
  judge(letter);
  if (settings().chk_iránygyakoroltatása.ticked()) irány_gyakorlás();
}

void frm_betűválogatás::judge(int letter) {
  const int place = number_in(kép.Tag).value_or(0);
  if (!answer_sound(session(), side_of(place) == letter)) return;
  if (settings().chk_animáció.ticked()) fly(place);
  Label& name = eredményképnév[place];
  szöveg_illesztés(name);
  // The one step by which fitting overfills may be too much for a word of many syllables.
  if (platform().measure(name.Font, name.Caption).width > name.Width) name.Font.size -= 1;
  eredménykép[place].Visible = true;
  name.Visible = true;
  platform().redraw(*this);
  következő_feladat();
}

// The picture shrinks about its centre, then moves to its place.
void frm_betűválogatás::fly(int place) {
  Animation animation(session(), *this);
  const int steps = settings().scrollbar_finomság.value();
  const Rect start = place_of(kép);
  const Rect goal = place_of(eredménykép[place]);
  const Rect shrunk{static_cast<double>(rounded(start.left + start.width / 2 - goal.width / 2)),
                    static_cast<double>(rounded(start.top + start.height / 2 - goal.height / 2)), goal.width,
                    goal.height};
  const auto stage = [&](const Rect& from, const Rect& to, int count) {
    animation.steps(1, count, [&](int n) { put(kép, between(from, to, static_cast<double>(n) / count)); });
  };
  stage(start, shrunk, 2 * steps);
  stage(shrunk, goal, 8 * steps);
  kép.Visible = false;
  put(kép, start);
}

// One question after the other, until the panel is closed.
void frm_betűválogatás::irány_gyakorlás() {
  struct TaskLine {
    Label& label;
    Text before;
    explicit TaskLine(Label& line) : label(line), before(line.Caption) { label.Caption = direction_task; }
    ~TaskLine() { label.Caption = before; }
    TaskLine(const TaskLine&) = delete;
    TaskLine& operator=(const TaskLine&) = delete;
  };
  const TaskLine task(Label1);
  CheckBox& wanted = settings().chk_iránygyakoroltatása;
  while (wanted.ticked()) {
    platform().redraw(*this);
    const Text direction = irány_kérdés(session());
    if (direction == frm_irányválasztó::jobbra) {
      judge(1);
    } else if (direction == frm_irányválasztó::balra) {
      judge(0);
    } else {
      wanted.set_value(0);
      if (session().loaded<frm_irányválasztó>()) session().unload(session().window<frm_irányválasztó>());
    }
  }
}

void frm_betűválogatás::új_sorozat() {
  eredménykép.each([](PictureBox& place) { place.Tag = done; });
  következő_feladat();
  if (settings().chk_iránygyakoroltatása.ticked()) irány_gyakorlás();
}

void frm_betűválogatás::change_settings() {
  frm_betűválogatás_beállítás& dialog = settings();
  const NotedFields before(
      {&dialog.scrollbar_finomság, &dialog.chk_animáció, &dialog.udszóhossz, SelectedEntries{&dialog.lst_betűpárok}});
  platform().show_modal(dialog);
  if (dialog.Ok.Tag != u"ok") {
    before.take_back();
    // The selection of one language may leave nothing of the list of the other.
    if (dialog.lst_betűpárok.selected_count() == 0) dialog.select_all(true);
    return;
  }
  középsőképnév.Caption = marker;
  dialog.Ok.Tag.clear();
  új_sorozat();
}

} // namespace cserko
