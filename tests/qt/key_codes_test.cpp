#include "platform/qt/keys.h"

#include <gtest/gtest.h>

namespace cserko::test {

namespace {

KeyEvent pressed(int qt_key, const QString& types = {}, Qt::KeyboardModifiers held = {}) {
  return to_key_event(QKeyEvent(QEvent::KeyPress, qt_key, held, types));
}

TEST(KeyCodes, LettersHaveTheCodeOfTheirCapital) {
  const KeyEvent small = pressed(Qt::Key_A, "a");
  EXPECT_EQ(small.code, 65);
  EXPECT_EQ(small.character, u'a');
  EXPECT_EQ(pressed(Qt::Key_Z, "Z", Qt::ShiftModifier).code, 90);
}

TEST(KeyCodes, DigitsHaveTheirCharactersCode) {
  EXPECT_EQ(pressed(Qt::Key_0, "0").code, 48);
  EXPECT_EQ(pressed(Qt::Key_9, "9").code, 57);
}

TEST(KeyCodes, HungarianLettersHaveTheCodeOfTheirCapitalInCodePage1250) {
  const std::pair<char16_t, int> letters[] = {{u'Á', 193}, {u'É', 201}, {u'Í', 205}, {u'Ó', 211}, {u'Ö', 214},
                                              {u'Ő', 213}, {u'Ú', 218}, {u'Ü', 220}, {u'Ű', 219}};
  for (const auto& [capital, code] : letters) {
    const KeyEvent event = pressed(capital, QString(QChar(capital)).toLower());
    EXPECT_EQ(event.code, code);
    EXPECT_EQ(event.character, lower_case(capital));
  }
}

TEST(KeyCodes, FunctionKeysRunFromOneHundredAndTwelve) {
  EXPECT_EQ(pressed(Qt::Key_F1).code, 112);
  EXPECT_EQ(pressed(Qt::Key_F12).code, 123);
}

TEST(KeyCodes, KeysWithNamesHaveTheSystemsCodes) {
  EXPECT_EQ(pressed(Qt::Key_Return, "\r").code, key::enter);
  EXPECT_EQ(pressed(Qt::Key_Enter, "\r").code, key::enter);
  EXPECT_EQ(pressed(Qt::Key_Backtab).code, key::tab);
  EXPECT_EQ(pressed(Qt::Key_Space, " ").code, key::space);
  EXPECT_EQ(pressed(Qt::Key_Left).code, key::left);
  EXPECT_EQ(pressed(Qt::Key_Up).code, key::up);
  EXPECT_EQ(pressed(Qt::Key_Right).code, key::right);
  EXPECT_EQ(pressed(Qt::Key_Down).code, key::down);
  EXPECT_EQ(pressed(Qt::Key_Escape, "\x1b").code, key::escape);
}

TEST(KeyCodes, KeysThatTypeNothingCarryNoCharacter) {
  EXPECT_EQ(pressed(Qt::Key_Return, "\r").character, 0);
  EXPECT_EQ(pressed(Qt::Key_Escape, "\x1b").character, 0);
  EXPECT_EQ(pressed(Qt::Key_Backspace, "\b").character, 0);
  EXPECT_EQ(pressed(Qt::Key_Delete, "\x7f").character, 0);
  EXPECT_EQ(pressed(Qt::Key_Left).character, 0);
}

TEST(KeyCodes, ALetterTypedAsTwoPartsArrivesComposed) {
  EXPECT_EQ(pressed(Qt::Key_Aacute, QString(u'a') + QChar(0x0301)).character, u'á');
}

TEST(KeyCodes, TheShiftMaskNamesWhatIsHeldBesideTheKey) {
  EXPECT_EQ(pressed(Qt::Key_A, "A", Qt::ShiftModifier).shift, shift::shift);
  EXPECT_EQ(pressed(Qt::Key_A, {}, Qt::ControlModifier | Qt::AltModifier).shift, shift::control | shift::alt);
  EXPECT_EQ(pressed(Qt::Key_Shift, {}, Qt::ShiftModifier).shift, shift::none);
  EXPECT_EQ(pressed(Qt::Key_Alt, {}, Qt::AltModifier | Qt::ShiftModifier).shift, shift::shift);
}

// A key as an X server tells of it: its place on the keyboard goes along.
KeyEvent pressed_at(quint32 scan_code, int qt_key, const QString& types, Qt::KeyboardModifiers held) {
#ifdef Q_OS_WIN
  scan_code -= 8; // where an X server begins to count
#endif
  return to_key_event(QKeyEvent(QEvent::KeyPress, qt_key, held, scan_code, 0, 0, types));
}

TEST(KeyCodes, CommaPeriodAndMinusHaveTheSystemsCodes) {
  EXPECT_EQ(pressed(Qt::Key_Comma, ",").code, 188);
  EXPECT_EQ(pressed(Qt::Key_Minus, "-").code, 189);
  EXPECT_EQ(pressed(Qt::Key_Period, ".").code, 190);
  EXPECT_EQ(pressed(Qt::Key_Comma, ",").character, u',');
}

TEST(KeyCodes, WithShiftTheyAreStillTheSameKeys) {
  constexpr quint32 comma_place = 59;
  constexpr quint32 period_place = 60;
  EXPECT_EQ(pressed_at(comma_place, Qt::Key_Question, "?", Qt::ShiftModifier).code, 188) << "Hungarian";
  EXPECT_EQ(pressed_at(comma_place, Qt::Key_Less, "<", Qt::ShiftModifier).code, 188) << "English";
  EXPECT_EQ(pressed_at(period_place, Qt::Key_Colon, ":", Qt::ShiftModifier).code, 190);
  EXPECT_EQ(pressed_at(61, Qt::Key_Underscore, "_", Qt::ShiftModifier).code, 189);
  EXPECT_EQ(pressed_at(comma_place, Qt::Key_Question, "?", Qt::ShiftModifier).character, u'?');
}

TEST(KeyCodes, SignsAreNeverTakenForArrowsOrPageKeys) {
  const std::pair<Qt::Key, char> signs[] = {
      {Qt::Key_Percent, '%'}, {Qt::Key_Ampersand, '&'}, {Qt::Key_Apostrophe, '\''}, {Qt::Key_ParenLeft, '('},
      {Qt::Key_Exclam, '!'},  {Qt::Key_QuoteDbl, '"'},  {Qt::Key_NumberSign, '#'},  {Qt::Key_Dollar, '$'},
      {Qt::Key_Slash, '/'},   {Qt::Key_Plus, '+'},      {Qt::Key_AsciiCircum, '^'}, {Qt::Key_BraceLeft, '{'},
      {Qt::Key_Bar, '|'},     {Qt::Key_At, '@'},        {Qt::Key_ParenRight, ')'}};
  for (const auto& [qt_key, sign] : signs) {
    const QString types{QLatin1Char(sign)};
    EXPECT_EQ(pressed(qt_key, types).code, 0) << sign;
    EXPECT_EQ(pressed(qt_key, types, Qt::ShiftModifier).code, 0) << sign << " where no place is told";
    EXPECT_EQ(pressed(qt_key, types).character, static_cast<char16_t>(sign));
  }
}

TEST(KeyCodes, ADigitKeyHasItsCodeWithShiftToo) {
  EXPECT_EQ(pressed_at(10, Qt::Key_Apostrophe, "'", Qt::ShiftModifier).code, '1');
  EXPECT_EQ(pressed_at(14, Qt::Key_Percent, "%", Qt::ShiftModifier).code, '5');
  EXPECT_EQ(pressed_at(18, Qt::Key_ParenRight, ")", Qt::ShiftModifier).code, '9');
  EXPECT_EQ(pressed_at(19, Qt::Key_ParenRight, ")", Qt::ShiftModifier).code, '0');
  EXPECT_EQ(pressed_at(49, Qt::Key_section, "§", Qt::ShiftModifier).code, '0');
  EXPECT_EQ(pressed_at(19, 0xD6, "Ö", Qt::ShiftModifier).code, 214) << "a letter, whatever its place";
}

TEST(KeyCodes, LettersThatTheCodePageHasElsewhereHaveNone) {
  EXPECT_EQ(pressed(0xD1, "Ñ").code, 0);
  EXPECT_EQ(pressed(0xDF, "ß").code, 0);
  EXPECT_EQ(pressed(0xD7, "×").code, 0);
}

TEST(KeyCodes, KeysOfNoCodeAreCodeZero) {
  EXPECT_EQ(pressed(Qt::Key_AltGr).code, 0);
  EXPECT_EQ(pressed(Qt::Key_VolumeUp).code, 0);
}

TEST(MouseButtons, HaveTheSystemsNumbers) {
  EXPECT_EQ(static_cast<int>(to_mouse_button(Qt::LeftButton)), 1);
  EXPECT_EQ(static_cast<int>(to_mouse_button(Qt::RightButton)), 2);
  EXPECT_EQ(static_cast<int>(to_mouse_button(Qt::MiddleButton)), 4);
  EXPECT_EQ(to_mouse_button(Qt::BackButton), MouseButton::None);
}

TEST(MouseButtons, AMoveWithSeveralHeldIsOneOfTheLeftFirst) {
  EXPECT_EQ(held_button(Qt::RightButton | Qt::LeftButton), MouseButton::Left);
  EXPECT_EQ(held_button(Qt::MiddleButton), MouseButton::Middle);
  EXPECT_EQ(held_button(Qt::NoButton), MouseButton::None);
}

} // namespace
} // namespace cserko::test
