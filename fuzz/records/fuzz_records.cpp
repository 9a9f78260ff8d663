// Reads any bytes as record files and checks what must hold for every file.
#include "core/codepage.h"
#include "core/kszöveg.h"
#include "core/records.h"
#include "platform/headless/memory_files.h"

#include <cstdlib>

namespace cserko {
namespace {

// What must hold; ends the program where it does not, so that the fuzzer keeps the input.
void require(bool holds) {
  if (!holds) std::abort();
}

void check_field(const Text& field) {
  require(field.size() <= Records::longest_field);
  require(field.find_first_of(u"\r\n") == Text::npos);
}

void check_letters(const Text& word) {
  const kszöveg text(word);
  const int count = text.MAGYARBETŰKSZÁMA();
  require(count <= text.lenght() && (count > 0 || word.empty()));
  if (word.empty()) return;
  require(lower_case(text.magyarleft(count)) == lower_case(word));
  require(text.magyarright(count) == text.magyarleft(count));
  for (int n = 1; n <= count; ++n) require(!text.szóbetűje(int{n}).empty());
  // A comma is a letter like any other and would look like an empty place of the list.
  if (word.find(u',') == Text::npos) require(text.vanebenne(text.szóbetűje(1)));
}

void check_record(const Records& records, int index) {
  const KépAdat& record = records[index];
  for (const Text* field :
       {&record.név, &record.angol, &record.szótagolt, &record.meghatározás, &record.igaz, &record.hamis})
    check_field(*field);
  require(records.szótagszám(index) >= 1);
  check_letters(record.név);
  check_letters(record.szótagolt);
}

// A zero byte begins the next file, so that one input can be several records.
void put_files(MemoryFiles& files, std::string_view bytes) {
  for (int number = 0; number < 16; ++number) {
    const std::size_t end = bytes.find('\0');
    files.put(u"c:\\cserko\\kepek\\" + to_text(number) + u".wms", bytes.substr(0, end));
    if (end == std::string_view::npos) return;
    bytes.remove_prefix(end + 1);
  }
}

} // namespace
} // namespace cserko

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace cserko;
  const std::string bytes(data, data + size);
  require(to_cp1250(from_cp1250(bytes)) == bytes);
  MemoryFiles files;
  put_files(files, bytes);
  Records records;
  records.load(files, u"c:\\cserko\\");
  for (int index = 0; index <= records.képszám; ++index) check_record(records, index);
  return 0;
}
