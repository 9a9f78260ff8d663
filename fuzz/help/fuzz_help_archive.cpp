// Any bytes as a help page. What is read comes out of the file and of nothing else, so there is a bound to it; what the
// page refers to is looked up as the viewer does.
#include "viewer/help_archive.h"

#include <QRegularExpression>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>

namespace {

using namespace cserko;

void require(bool condition) {
  if (!condition) std::abort();
}

/// A byte becomes two units at most, and a unit of a plain text the six of "&quot;".
constexpr qsizetype most_units_of_a_byte = 12;
constexpr int most_parts = 1000;

void check_part(const ArchivePart* part, qsizetype input_size) {
  if (part == nullptr) return;
  require(part->content.size() <= input_size && part->location.size() <= input_size);
  // A media type has no letters but those of ASCII, so others stay as they are.
  require(part->type.toLatin1() == part->type.toLatin1().toLower());
}

void look_up(const HelpArchive& archive, const QString& page, qsizetype input_size) {
  static const QRegularExpression reference(QStringLiteral("(?:src|href)\\s*=\\s*[\"']?([^\"'>\\s]*)"),
                                            QRegularExpression::CaseInsensitiveOption);
  constexpr int most_references = 100;
  auto found = reference.globalMatch(page);
  for (int i = 0; i < most_references && found.hasNext(); ++i) {
    const QString name = found.next().captured(1);
    for (const QString& written : {name, "cid:" + name}) {
      const ArchivePart* part = archive.find(written);
      check_part(part, input_size);
      // Where a location is known under its full name, that part is meant whatever folder stands before another one.
      if (part != nullptr && part->location == name) require(archive.find("folder/" + name) != nullptr);
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const HelpArchive archive = HelpArchive::read(bytes);
  // Every part but the message itself has a boundary line of its own, at least three bytes long.
  require(archive.count() <= 1 + bytes.size() / 3 && archive.count() <= most_parts);
  const QString page = archive.page();
  require(page.size() <= most_units_of_a_byte * bytes.size());
  require(archive.count() > 0 || page.isEmpty());
  look_up(archive, page, bytes.size());
  require(HelpArchive::read(bytes).page() == page);
  return 0;
}
