// Settings files: plain text, one value a line, told apart by their position alone.
#pragma once

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
  void text(TextView value);
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// Writes a file under the fixed root, making its folders first. A failure is told to the user and changes nothing.
void write_settings(Platform& platform, const Text& path, const SettingsWriter& content);

/// A control whose value is one line of the file.
using SettingsField = std::variant<UpDown*, CheckBox*, OptionButton*, ScrollBar*>;

/// The values of a dialog's controls as the lines of its file, in the order of the fields.
SettingsWriter write_fields(const std::vector<SettingsField>& fields);

/// Reads lines into the controls. A line that its control cannot take is skipped; fields behind the last line keep
/// what they hold.
void read_fields(const std::vector<SettingsField>& fields, std::string_view bytes);

/// What a line says, none where it says no such thing.
std::optional<int> number_in(TextView line);
std::optional<bool> word_in(TextView line);

/// The base of the settings dialogs. A dialog tells its fields in file order, its file and its buttons; reading,
/// writing, OK, Cancel and Help come from here. Its controls are the live store of the settings.
class SettingsDialog : public Window {
 public:
  void Load() override;
  /// Closing by the window's own control cancels: the dialog stays loaded, as the settings live in it.
  void QueryUnload(bool& cancel) override;

 protected:
  SettingsDialog(Session& session, TextView name, Size design, TextView caption, TextView file);

  Session& session() const { return session_; }

  /// Called once in the constructor of the dialog.
  void set_fields(std::vector<SettingsField> fields) { fields_ = std::move(fields); }
  void set_buttons(Button& ok, Button& cancel);
  void set_help(Button& help, TextView page);
  /// A file under the application folder that is read where the user has none of his own.
  void set_factory_file(TextView relative_path) { factory_file_ = relative_path; }

  /// Reads the file into the controls; a missing file leaves them as they are.
  void read();
  /// The file that `read` opens, none if there is none: the user's own, else the factory's.
  virtual std::optional<Text> file_to_read() const;
  /// Writes the controls into the file.
  void write();

  /// OK: write, hide, apply.
  void accept();
  /// Cancel: read again, hide. Without a file the changed values stay in the controls, which is intended.
  void cancel();
  /// What OK does with the running exercise.
  virtual void apply() {}

  /// Full path of the user's own file, and of the factory's, empty if it has none.
  const Text& own_file() const { return file_; }
  Text factory_file() const { return factory_file_.empty() ? Text() : session_.alapkönyvtár + factory_file_; }

 private:
  Session& session_;
  Text file_;
  Text factory_file_;
  std::vector<SettingsField> fields_;
};

} // namespace cserko
