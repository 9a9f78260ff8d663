#include "tests/soak/census.h"

#include "core/exercise_table.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <ostream>

namespace cserko {

namespace {

constexpr TextView viewer = u"tintabrowser.exe ";

// What is offered besides the exercises.
constexpr std::array<TextView, 5> further_windows{u"frm_hangbeáll", u"frm_zenebeáll", u"frm_dobszerkó", u"frm_rajz",
                                                  u"frm_grafikus_főablak"};

// Loaded and never shown: one carries the look, the other the timer of a pause.
constexpr std::array<TextView, 2> hidden_windows{u"frm_referencia", u"frmwait"};

// The contents page alone leads to these.
const std::set<Text> pages_behind_others{u"cserkó - eseményhangok.mht", u"cserkó - zene.mht"};

Text bare_name(const Text& path) { return path.substr(path.rfind(u'\\') + 1); }

int sum(const std::map<Text, int>& counts) {
  return std::accumulate(counts.begin(), counts.end(), 0,
                         [](int all, const auto& entry) { return all + entry.second; });
}

void print(std::ostream& out, const char* what, const std::map<Text, int>& counts) {
  out << what << ": " << sum(counts) << '\n';
  for (const auto& [name, count] : counts) out << "  " << to_utf8(name) << ": " << count << '\n';
}

int count_of(const std::map<Text, int>& counts, const Text& name) {
  const auto found = counts.find(name);
  return found == counts.end() ? 0 : found->second;
}

} // namespace

std::set<Text> written_help_pages(const std::string& folder) {
  constexpr std::string_view mark = "<!-- page: ";
  std::set<Text> pages;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path());
    std::string line;
    if (!std::getline(file, line) || !line.starts_with(mark)) continue;
    pages.insert(from_utf8(line.substr(mark.size(), line.rfind(" -->") - mark.size())));
  }
  return pages;
}

void Census::add(CountingMachine& machine, const Session& session) {
  for (const auto& [name, count] : machine.shown()) shown_[name] += count;
  for (const ExerciseEntry& entry : exercise_table) {
    if (session.offers(entry.window)) offered_.emplace(entry.window);
  }
  for (const TextView name : further_windows) {
    if (session.offers(name)) offered_.emplace(name);
  }
  for (const Text& path : machine.media().played) {
    if (path.find(u"\\dysmid\\") != Text::npos) ++titles_[bare_name(path)];
    if (path.find(u"\\dob\\") != Text::npos) ++drums_[bare_name(path)];
  }
  for (const auto& process : machine.processes) {
    if (process.command_line.find(viewer) != Text::npos) ++help_pages_[bare_name(process.command_line)];
  }
}

std::set<Text> Census::report(std::ostream& out, const std::map<Text, int>& events_by_window) const {
  std::set<Text> never;
  out << "windows, how often shown, events:\n";
  for (const auto& [name, times] : shown_) {
    const int events = count_of(events_by_window, name);
    out << "  " << to_utf8(name) << ": " << times << ", " << events << '\n';
    const bool hidden = std::find(hidden_windows.begin(), hidden_windows.end(), name) != hidden_windows.end();
    if (times == 0 && !hidden) never.insert(name);
  }
  for (const Text& name : offered_) {
    if (count_of(events_by_window, name) == 0) never.insert(name);
  }
  print(out, "titles played", titles_);
  print(out, "drums struck", drums_);
  print(out, "help pages opened", help_pages_);
  if (titles_.empty()) never.emplace(u"music");
  if (drums_.empty()) never.emplace(u"drums");
  for (const Text& page : wanted_pages_) {
    if (count_of(help_pages_, page) == 0 && pages_behind_others.count(page) == 0) never.insert(page);
  }
  return never;
}

} // namespace cserko
