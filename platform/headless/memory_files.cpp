#include "platform/headless/memory_files.h"

#include "platform/suite_path.h"

namespace cserko {

namespace {

// Length of the folder part of a path, without the backslash behind it.
std::size_t folder_length(TextView path) {
  const std::size_t last = path.rfind(u'\\');
  return last == TextView::npos ? 0 : last;
}

TextView bare_name(TextView path) {
  const std::size_t last = path.rfind(u'\\');
  return last == TextView::npos ? path : path.substr(last + 1);
}

// Both in lower case. A star stands for any characters, a question mark for one.
bool matches(TextView name, TextView pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == u'*') {
    for (std::size_t taken = 0; taken <= name.size(); ++taken) {
      if (matches(name.substr(taken), pattern.substr(1))) return true;
    }
    return false;
  }
  if (name.empty() || (pattern.front() != u'?' && pattern.front() != name.front())) return false;
  return matches(name.substr(1), pattern.substr(1));
}

// The one form of a path within the suite's two folders; empty for one that leads out of them, where nothing is.
Text inside(const Text& path) {
  const auto led_to = suite_path(path);
  return led_to ? led_to->text() : Text();
}

[[noreturn]] void fail(TextView what, const Text& path) { throw FileError(to_utf8(Text(what) + u": " + path)); }

} // namespace

MemoryFiles::MemoryFiles() { folders_.insert(u"c:"); }

Text MemoryFiles::folded(const Text& path) {
  Text result;
  for (const char16_t character : path) {
    if (character == u'\\' && !result.empty() && result.back() == u'\\') continue;
    result.push_back(lower_case(character));
  }
  if (!result.empty() && result.back() == u'\\') result.pop_back();
  return result;
}

const MemoryFiles::File* MemoryFiles::find(const Text& path) const {
  const auto found = index_.find(folded(path));
  return found == index_.end() ? nullptr : &files_[found->second];
}

std::vector<Text> MemoryFiles::list(const Text& pattern) const {
  const Text wanted = folded(inside(pattern));
  const TextView folder = TextView(wanted).substr(0, folder_length(wanted));
  const TextView name_pattern = bare_name(wanted);
  std::vector<Text> names;
  for (const File& file : files_) {
    if (file.folder != folder) continue;
    const TextView name = bare_name(file.path);
    if (matches(lower_case(name), name_pattern)) names.emplace_back(name);
  }
  return names;
}

bool MemoryFiles::exists(const Text& path) const { return find(inside(path)) != nullptr; }

std::optional<std::string> MemoryFiles::read(const Text& given) const {
  ++reads_;
  return read_chosen(inside(given));
}

std::optional<std::string> MemoryFiles::read_chosen(const Text& path) const {
  const File* file = find(path);
  if (file == nullptr || unreadable_.count(folded(path)) != 0) return std::nullopt;
  return file->bytes;
}

bool MemoryFiles::writable(const Text& folded_path) const {
  for (Text part = folded_path; !part.empty(); part.resize(folder_length(part))) {
    if (unwritable_.count(part) != 0) return false;
  }
  return true;
}

void MemoryFiles::write(const Text& given, std::string_view bytes) {
  const Text path = inside(given);
  if (path.empty()) fail(u"Ide nem lehet írni", given);
  write_chosen(path, bytes);
  if (watch) watch(u"write", path);
}

void MemoryFiles::write_chosen(const Text& path, std::string_view bytes) {
  const Text key = folded(path);
  if (folders_.count(key.substr(0, folder_length(key))) == 0) fail(u"A mappa nem létezik", path);
  if (folders_.count(key) != 0 || !writable(key)) fail(u"A fájl nem írható", path);
  if (free_space && bytes.size() > *free_space) fail(u"Megtelt a lemez", path);
  const File* before = find(path);
  const std::size_t freed = before == nullptr ? 0 : before->bytes.size();
  if (free_space) *free_space += freed - bytes.size();
  store(path, bytes);
}

void MemoryFiles::make_folder(const Text& path) {
  const Text key = folded(inside(path));
  if (key.empty()) fail(u"Ide nem lehet írni", path);
  if (folders_.count(key) != 0) return;
  if (folders_.count(key.substr(0, folder_length(key))) == 0 || index_.count(key) != 0 || !writable(key))
    fail(u"A mappa nem hozható létre", path);
  folders_.insert(key);
}

void MemoryFiles::remove(const Text& path) {
  if (!exists(path)) fail(u"A fájl nem létezik", path);
  const Text there = inside(path);
  if (!writable(folded(there))) fail(u"A fájl nem törölhető", path);
  take(there);
  if (watch) watch(u"remove", there);
}

void MemoryFiles::put(const Text& path, std::string_view bytes) {
  put_folder(path.substr(0, folder_length(path)));
  store(path, bytes);
}

void MemoryFiles::put_folder(const Text& path) {
  for (Text part = folded(path); !part.empty(); part.resize(folder_length(part))) folders_.insert(part);
}

bool MemoryFiles::folder_exists(const Text& path) const { return folders_.count(folded(path)) != 0; }

void MemoryFiles::store(const Text& path, std::string_view bytes) {
  Text key = folded(path);
  if (const auto found = index_.find(key); found != index_.end()) {
    files_[found->second].bytes = bytes;
    return;
  }
  files_.push_back({path, key.substr(0, folder_length(key)), std::string(bytes)});
  index_.emplace(std::move(key), files_.size() - 1);
}

void MemoryFiles::take(const Text& path) {
  const auto found = index_.find(folded(path));
  if (found == index_.end()) return;
  const std::size_t gone = found->second;
  index_.erase(found);
  files_.erase(files_.begin() + static_cast<std::ptrdiff_t>(gone));
  for (auto& [key, at] : index_) {
    if (at > gone) --at;
  }
}

std::vector<Text> MemoryFiles::all() const {
  std::vector<Text> paths;
  for (const File& file : files_) paths.push_back(file.path);
  return paths;
}

} // namespace cserko
