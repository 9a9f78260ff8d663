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
