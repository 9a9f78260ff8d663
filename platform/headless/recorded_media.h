// Sound that is written down instead of heard. Titles last as long on the virtual clock as they are said to last.
#pragma once

#include "platform/headless/memory_files.h"
#include "platform/media_command.h"

namespace cserko {

class RecordedMedia : public Media {
 public:
  /// The clock gives the present time in ms.
  RecordedMedia(const MemoryFiles& files, std::function<std::int64_t()> clock);

  MediaResult send(const std::u16string& command) override;
  std::u16string error_text(int code) override;
  void beep() override { ++beeps; }

  std::vector<Text> commands; ///< Every command string that was sent, refused ones included.
  std::vector<Text> played;   ///< The path of every title that began to sound, as it was opened.
  int beeps = 0;

  /// How long titles last that have no length of their own, ms.
  int sound_length = 1000;
  int music_length = 60000;
  /// Length of one title, ms.
  void set_length(const Text& path, int ms) { lengths_[MemoryFiles::folded(path)] = ms; }
  /// The file is there and is no title: opening it fails.
  void break_title(const Text& path) { broken_.insert(MemoryFiles::folded(path)); }
  /// Further commands with this beginning fail with the code, as on a machine whose device is taken.
  void refuse(const Text& beginning, int code) { refused_.emplace_back(beginning, code); }

  /// What is up under an alias now.
  MediaMode mode(MediaAlias alias);
  /// The path of the open title, empty if none is.
  const Text& path(MediaAlias alias) const { return state_.path(alias); }

 private:
  struct Run {
    std::int64_t since = 0; // when it began or went on to sound
    std::int64_t left = 0;  // what was left of it then
  };

  MediaResult carry_out(const MediaCommand& command);
  MediaError open_error(const MediaCommand& command) const;
  void play(MediaAlias alias);
  void pause(MediaAlias alias);
  void notice_end(MediaAlias alias);
  std::int64_t length(MediaAlias alias) const;
  Run& run(MediaAlias alias) { return runs_[static_cast<std::size_t>(alias)]; }

  const MemoryFiles& files_;
  std::function<std::int64_t()> clock_;
  MediaState state_;
  std::array<Run, 2> runs_;
  std::map<Text, int> lengths_;
  std::set<Text> broken_;
  std::vector<std::pair<Text, int>> refused_;
};

} // namespace cserko
