// The system's dialogs with a person who has made up his mind, and a printer whose pages are kept.
#pragma once

#include "platform/headless/memory_files.h"

#include <deque>

namespace cserko {

class ScriptedDialogs : public Dialogs {
 public:
  explicit ScriptedDialogs(MemoryFiles& files) : files_(files) {}

  // The answers, taken in turn; with none left the person cancels. Files are chosen among those in memory.
  std::deque<std::optional<Text>> files_to_open;
  std::deque<std::optional<Text>> files_to_save;
  std::deque<std::optional<Color>> colors;
  /// What happens while a dialog stands.
  std::function<void()> while_standing;

  // What was asked.
  std::vector<FileQuestion> open_questions;
  std::vector<FileQuestion> save_questions;
  std::vector<Color> color_questions;

  bool standing() const { return standing_ > 0; }
  /// Lets a dialog stand before a window and activates the window behind it.
  void stand(Window& owner);

  std::optional<Text> open_file(Window& owner, const FileQuestion& question) override;
  std::optional<Text> save_file(Window& owner, const FileQuestion& question) override;
  std::optional<Color> choose_color(Window& owner, Color present) override;
  std::optional<std::string> read(const Text& chosen) override { return files_.read_chosen(chosen); }
  void write(const Text& chosen, std::string_view bytes) override { files_.write_chosen(chosen, bytes); }

 private:
  MemoryFiles& files_;
  int standing_ = 0;
};

class RecordedPrinting : public Printing {
 public:
  /// What was painted on a page.
  struct Page {
    PixelImage image;
    Rect place;
    bool finished = false;
    Text pdf; ///< The file, empty for the printer.
  };

  explicit RecordedPrinting(ScriptedDialogs& dialogs) : dialogs_(dialogs) {}

  bool installed = true;
  bool cancelled = false; ///< The person puts the print dialog away.
  bool fails = false;     ///< No document reaches the printer, or the disk.
  Size paper{3000, 4000};
  std::vector<Page> pages;

  bool available() const override { return installed; }
  std::unique_ptr<PrintJob> start(Window& owner) override;
  std::unique_ptr<PrintJob> start_pdf(const Text& chosen) override;

 private:
  ScriptedDialogs& dialogs_;
};

} // namespace cserko
