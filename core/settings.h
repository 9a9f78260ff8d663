// Settings files: plain text, one value a line, told apart by their position alone.
#pragma once

#include "core/codepage.h"
#include "core/session.h"

#include <variant>

namespace cserko {

/// Builds the content of a settings file, line by line, in code page 1250 with CR LF.
class SettingsWriter {
 public:
  /// A number or the value of a check box: a blank or minus in the sign position, the digits, a blank.
  void number(int value);
  /// The words True and False.
  void word(bool value);
  /// A text between quotation marks, so that blanks at its ends survive.
  void quoted(TextView value);
  void text(TextView value);
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// What a line says, none where it says no such thing.
std::optional<int> number_in(TextView line);
std::optional<bool> word_in(TextView line);
/// The text between the first and the last quotation mark; a line without them is taken as it is. None if it is empty.
std::optional<Text> quoted_in(TextView line);

/// Writes a file under the fixed root, making its folders first. A failure is told to the user and changes nothing.
void write_settings(Platform& platform, const Text& path, const SettingsWriter& content);

/// Two options that exclude each other, of which the file holds the first alone.
struct OppositeOptions {
  OptionButton* stored;
  OptionButton* opposite;
};

/// For each entry of a list with several selections whether it is selected, a word a line. The list has its entries
/// before the file is read.
struct SelectedEntries {
  ListBox* list;
};

/// A number that no control holds.
struct StoredNumber {
  std::function<int()> value;
  /// Takes what it can and ignores the rest: the number comes out of a file.
  std::function<void(int)> set;
};

/// Left, top, width and height of a window, four lines in whole twips. A place is taken over as a whole or not at all;
/// the window then lies on the screen, wherever it lay on another one.
struct WindowPlace {
  Window* window;
};

/// What the lines of a file stand for: a number (up-down, check box, scroll bar), a word (option), a quoted text (text
/// box), or one of the above.
using SettingsField = std::variant<UpDown*, CheckBox*, OptionButton*, ScrollBar*, TextBox*, OppositeOptions,
                                   SelectedEntries, StoredNumber, WindowPlace>;

/// Fields in the order of their file.
class SettingsFields {
 public:
  SettingsFields() = default;
  /// The ranges that the up-downs have at this moment are the widest that they ever get.
  SettingsFields(std::vector<SettingsField> fields); // NOLINT: a list of fields stands for itself

  /// The values as the lines of the file.
  SettingsWriter written() const;
  /// Reads lines into the fields, in two steps: with every range at its widest and the handlers of the numbers at rest
  /// all values are set, then `settle`. So no line depends on what its neighbours held before. A line that its field
  /// cannot take is skipped; fields behind the last line keep what they hold.
  void read(std::string_view bytes) const;
  /// The same from where the reader stands; lines behind the fields are left to the caller.
  void read(LineReader& lines) const;
  /// Shows the numbers and runs the `Change` handlers of up-downs and scroll bars in the order of the fields, so that
  /// what depends on them (ranges, texts beside them) follows.
  void settle() const;

 private:
  struct Range {
    UpDown* updown;
    int minimum;
    int maximum;
  };

  void open_ranges() const;

  std::vector<SettingsField> fields_;
  std::vector<Range> widest_;
};

/// What some fields hold at one moment, for those who put it back themselves.
class NotedFields {
 public:
  /// Fields of which a list is one put it last, as its length may change.
  explicit NotedFields(std::vector<SettingsField> fields);
  void take_back() const { fields_.read(values_); }

 private:
  SettingsFields fields_;
  std::string values_;
};

/// Two up-downs that limit each other: the lower is at most what the upper holds, and at most its cap; the upper is at
/// least what the lower holds. Made before the fields of its dialog are set. It takes the `Change` handlers of both.
class CoupledRange {
 public:
  /// The cap of the lower one may be above its design range.
  CoupledRange(UpDown& lower, UpDown& upper, int cap);
  CoupledRange(UpDown& lower, UpDown& upper) : CoupledRange(lower, upper, lower.Max) {}
  CoupledRange(const CoupledRange&) = delete;
  CoupledRange& operator=(const CoupledRange&) = delete;

 private:
  void limit_lower();
  void limit_upper();

  UpDown& lower_;
  UpDown& upper_;
  int cap_;
};

/// The base of the settings dialogs. A dialog tells its fields in file order, its file and its buttons; reading,
/// writing, OK, Cancel, the close box and Help come from here. Its controls are the live store of the settings.
class SettingsDialog : public Window {
 public:
  /// Reads the file, centres the dialog, fits the buttons.
  void Load() override;
  /// F1 is the help button.
  void KeyDown(KeyEvent& event) override;
  /// Closing by the window's own control: the dialog stays loaded, as the settings live in it.
  void QueryUnload(bool& cancel) override;

  /// Reads the file into the controls; a missing file leaves them as they are.
  void read();
  /// Writes the controls into the user's file, never into the factory's.
  void write();

 protected:
  SettingsDialog(Session& session, TextView name, Size design, TextView caption, TextView file);

  Session& session() const { return session_; }

  // Called once in the constructor of the dialog.

  /// The fields in the order of the file, once all ranges are as wide as they get.
  void set_fields(std::vector<SettingsField> fields) { fields_ = SettingsFields(std::move(fields)); }
  void set_buttons(Button& ok, Button& cancel);
  void set_buttons(Button& ok);
  void set_help(Button& help, TextView page);
  /// A file under the application folder that is read where the user has none of his own.
  void set_factory_file(TextView relative_path) { factory_file_ = relative_path; }
  /// The captions of the buttons keep their size.
  void keep_button_fonts() { fit_buttons_ = false; }

  // What a dialog may do otherwise.

  /// The file that `read` opens, none if there is none: the user's own, else the factory's.
  virtual std::optional<Text> file_to_read() const;
  /// The rules over what has been read; runs at each reading, told whether there was a file.
  virtual void after_read(bool /*from_file*/) {}
  /// OK: write, hide, apply.
  virtual void accept();
  /// What OK does with the running exercise. The dialog is hidden and its file written by then.
  virtual void apply() {}
  /// Cancel: read again, hide. Without a file the changed values stay in the controls, which is intended.
  virtual void cancel();
  /// The window's own close control: Cancel.
  virtual void close_box() { cancel(); }

  /// Full path of the user's own file, and of the factory's, empty if it has none.
  const Text& own_file() const { return file_; }
  Text factory_file() const { return factory_file_.empty() ? Text() : session_.alapkönyvtár + factory_file_; }

 private:
  Session& session_;
  Text file_;
  Text factory_file_;
  SettingsFields fields_;
  Button* help_ = nullptr;
  bool fit_buttons_ = true;
};

} // namespace cserko
