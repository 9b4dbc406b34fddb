// SPDX-License-Identifier: MIT
#include "platform/posix/FileRegistry.h"
#include "platform/posix/PosixFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
const RegistryValue kNumber{RegistryType::Dword, {std::byte{0x24}, {}, {}, std::byte{1}}};
const RegistryValue kOddBytes{RegistryType::String, {std::byte{'/'}, {}, std::byte{'h'}}};
const RegistryValue kUnknown{static_cast<RegistryType>(11), {}};

class FileRegistryTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  const std::filesystem::path file = folder / "registry.txt";
  PosixFiles files;
  FileRegistry registry{file, files};
};

TEST_F(FileRegistryTest, KeepsKeysAndValues) {
  EXPECT_EQ(registry.OpenKey(kUser, u"Software"), nullptr);
  EXPECT_NE(registry.OpenKey(kUser, u""), nullptr) << "a root is always there";
  EXPECT_EQ(registry.CreateKey(kUser, u"two\nlines"), nullptr);
  const auto key = registry.CreateKey(kUser, u"Software\\A\u4F60\\Trusted \"Locations\"\\");
  ASSERT_NE(key, nullptr);
  EXPECT_TRUE(key->SetValue(u"Flags", kOddBytes) && key->SetValue(u"FLAGS", kNumber));
  EXPECT_TRUE(key->SetValue(u"", kUnknown) && key->SetValue(u"a\"=\\]", kOddBytes));
  EXPECT_EQ(ReadBytes(file),
            "Quorvantis registry 1\n\n[HKEY_CLASSES_ROOT]\n\n[HKEY_CURRENT_USER]\n\n"
            "[HKEY_CURRENT_USER\\Software\\A\xE4\xBD\xA0\\Trusted \"Locations\"]\n"
            "\"\"=hex(11):\n\"a\"=\\]\"=hex(1):2f0068\n\"Flags\"=dword:01000024\n");
  const auto again = registry.OpenKey(kUser, u"\\software\\a\u4F60\\\\TRUSTED \"locations\"");
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again->QueryValue(u"flags"), kNumber);
  EXPECT_EQ(again->QueryValue(u""), kUnknown);
  EXPECT_EQ(again->QueryValue(u"A\"=\\]"), kOddBytes);
  EXPECT_FALSE(again->SetValue(u"two\nlines", kNumber));
  EXPECT_TRUE(again->DeleteValue(u"fLAGS"));
  EXPECT_FALSE(again->DeleteValue(u"Flags"));
}

TEST_F(FileRegistryTest, DeletesKeysWithoutKeysBelowThem) {
  const auto key = registry.CreateKey(kUser, u"Software\\A");
  EXPECT_NE(registry.CreateKey(kUser, u"Software\\A b"), nullptr);
  EXPECT_FALSE(registry.DeleteKey(kUser, u"software") || registry.DeleteKey(kUser, u""));
  EXPECT_TRUE(registry.DeleteKey(kUser, u"software\\a"));
  EXPECT_FALSE(registry.DeleteKey(kUser, u"software\\a") || key->SetValue(u"", kNumber));
  EXPECT_TRUE(registry.DeleteKey(kUser, u"software\\a b"));
  EXPECT_NE(registry.OpenKey(kUser, u"Software"), nullptr) << "still there without what was below";
}

TEST_F(FileRegistryTest, LeavesADamagedFileAlone) {
  const std::string begin = "Quorvantis registry 1\r\n[HKEY_CURRENT_USER\\A]\r\n";
  WriteBytes(file, begin + "\"x\"=dword:0000002A");
  EXPECT_NE(registry.OpenKey(kUser, u"A"), nullptr) << "people edit files";
  for (const std::string damage :
       {"\"x\"=dword:2A", "\"x\"=dword:0000002G", "\"x\"=hex(1):4", "\"x\"=hex():41", "\"=hex(1):41", "x",
        "\"x", "[HKEY_CURRENT_USER\\A", "[HKEY_CURRENT_USER\\]", "[HKEY_CURRENT_USER\\\\A]", "[OTHER\\A]"}) {
    WriteBytes(file, begin + damage);
    EXPECT_EQ(registry.OpenKey(kUser, u"A"), nullptr) << damage;
    EXPECT_EQ(registry.CreateKey(kUser, u"B"), nullptr) << damage;
    EXPECT_EQ(ReadBytes(file), begin + damage);
  }
}

}  // namespace
}  // namespace quorvantis::test
