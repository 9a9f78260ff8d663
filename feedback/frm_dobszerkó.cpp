#include "feedback/frm_dobszerkó.h"

#include "core/frame.h"
#include "core/frm_főablak.h"
#include "core/numbers.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <array>

namespace cserko {

namespace {

constexpr double key_pitch = 960;
constexpr double first_row = 2700;

// The rows of a Hungarian keyboard; each row stands half a key further right.
constexpr std::array<TextView, 3> rows{u"QWERTZUIOP", u"ASDFGHJKL", u"YXCVBNM"};

Color complement(Color color) {
  return {static_cast<std::uint8_t>(255 - color.red), static_cast<std::uint8_t>(255 - color.green),
          static_cast<std::uint8_t>(255 - color.blue)};
}

} // namespace

frm_dobszerkó::frm_dobszerkó(Session& session)
    : Window(session.platform(), u"frm_dobszerkó", {9720, 5640}, u"Cserkó - Dobszerkó"), session_(session) {
  KeyPreview = true;
  design_keys();
  billentyű.Click = [this](int index) { strike(index); };
  Timer_ablakbezárás.Tick = [this] {
    szöveges_üzenet(session_, u"Gyere, játszunk egy kicsit újra a betűkkel!", 150);
    session_.unload(*this);
  };
}

void frm_dobszerkó::design_keys() {
  billentyű[comma].Opaque = true;
  billentyű[comma].Border = true;
  const Size size{billentyű[comma].Width, billentyű[comma].Height};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    double left = 120 + static_cast<double>(row) * key_pitch / 2;
    for (const char16_t letter : rows.at(row)) {
      billentyű.design(letter, {left, first_row + static_cast<double>(row) * key_pitch, size.width, size.height},
                       TextView(&letter, 1));
      left += key_pitch;
    }
    billentyű[comma].Left = left;
    billentyű[comma].Top = first_row + static_cast<double>(row) * key_pitch;
  }
}

void frm_dobszerkó::Load() {
  ablak_méretezés(*this, 0.7);
  const auto& main_window = session_.window<frm_főablak>();
  Picture = main_window.Picture;
  const Size screen = platform().screen_size();
  Top = screen.height / 2 - Height / 2;
  Left = screen.width / 2 - Width / 2;
  BackColor = main_window.BackColor;
  platform().seed_random();
  deal_sounds();
  billentyű.each([](Label& key) { szöveg_illesztés(key); });
  fit_big_letter();
}

void frm_dobszerkó::deal_sounds() {
  // When the listing runs out the remaining keys keep the folder alone and are silent.
  const Text folder = session_.alapkönyvtár + u"\\hangok\\dob\\";
  const std::vector<Text> names = platform().files().list(folder + u"*.wav");
  std::size_t next = 0;
  const auto deal = [&](int index) {
    dobhangok_[index] = folder + (next < names.size() ? names[next++] : Text());
    color_key(index);
  };
  deal(comma);
  for (int index = first_letter; index <= last_letter; ++index) deal(index);
}

void frm_dobszerkó::color_key(int index) {
  const auto component = [this] { return static_cast<std::uint8_t>(random_below(platform(), 256)); };
  const std::uint8_t red = component();
  const std::uint8_t green = component();
  const std::uint8_t blue = component();
  billentyű[index].BackColor = {red, green, blue};
  billentyű[index].ForeColor = complement(billentyű[index].BackColor);
}

void frm_dobszerkó::fit_big_letter() {
  cserko::Font font = Label1.Font;
  font.size = 10;
  // The tallest letter of the alphabet; it stands there until the first strike.
  Label1.Caption = u"Á";
  while (platform().measure(font, Label1.Caption).height < Label1.Height) font.size += 1;
  Label1.Font.size = font.size;
}

void frm_dobszerkó::strike(int index) {
  const Label& key = billentyű[index];
  Label1.Caption = Text(1, static_cast<char16_t>(index));
  Label1.Opaque = true;
  Label1.BackColor = key.ForeColor;
  Label1.ForeColor = key.BackColor;
  // The whole window flashes in the colour of the key: no paper hides it.
  Picture = nullptr;
  BackColor = key.BackColor;
  hang_lejátszás(session_, Text(dobhangok_.at(index)));
}

void frm_dobszerkó::KeyDown(KeyEvent& event) {
  if (event.code == key::escape) {
    session_.unload(*this);
  } else if (event.code == key::comma) {
    strike(comma);
  } else if (event.code >= first_letter && event.code <= last_letter) {
    strike(event.code);
  }
}

} // namespace cserko
