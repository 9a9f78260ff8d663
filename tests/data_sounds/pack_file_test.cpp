#include "data/wordlist/pack_file.h"
#include "pack_files.h"

#include <gtest/gtest.h>
#include <random>

namespace cserko::test {
namespace {

class PackFolder : public testing::Test {
 protected:
  PackFolder() { std::filesystem::remove_all(pack); }
  ~PackFolder() override { std::filesystem::remove_all(pack); }

  bool exists(std::u8string_view name) const { return std::filesystem::exists(pack / name); }

  // Tests of this file may run side by side as processes of their own.
  const std::filesystem::path pack =
      std::filesystem::temp_directory_path() / ("cserko-pack-" + std::to_string(std::random_device()()));
};

TEST_F(PackFolder, TakesAFileWithItsFoldersAndAccents) {
  write_pack_file(pack, "cserko/kép/betűpár.kvl", "a-b\r\n");
  EXPECT_TRUE(exists(u8"cserko/kép/betűpár.kvl"));
  EXPECT_EQ(bytes_of(pack / u8"cserko/kép/betűpár.kvl"), "a-b\r\n");
}

TEST_F(PackFolder, TellsAFileThatCannotBeWritten) {
  write_pack_file(pack, "a/b", "x");
  EXPECT_THROW(write_pack_file(pack, "a/b/c", "x"), std::exception);
}

TEST_F(PackFolder, LosesLeftOversOfItsKindOnly) {
  for (const char* name : {"d/old.wav", "d/new.wav", "d/old.txt", "d/e/old.wav"}) write_pack_file(pack, name, "x");
  remove_other_files(pack, "d", ".wav", {"new.wav"});
  EXPECT_FALSE(exists(u8"d/old.wav"));
  EXPECT_TRUE(exists(u8"d/new.wav"));
  EXPECT_TRUE(exists(u8"d/old.txt"));
  EXPECT_TRUE(exists(u8"d/e/old.wav"));
}

} // namespace
} // namespace cserko::test
