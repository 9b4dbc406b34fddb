// SPDX-License-Identifier: MIT
// Feeds any bytes to the settings reader ("system.ini", "ImportExam.ini"), as UTF-8, UTF-16 or an 8-bit code
// page. Nothing may crash, and after a value is set it is read back and every other value stays.
#include "Require.h"
#include "import/ExamImport.h"
#include "ini/ProfileFile.h"
#include "shell/settings/CodePageChoice.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cstdint>

namespace {

using namespace quorvantis;

constexpr std::u16string_view kSection = u"private";
constexpr std::u16string_view kKey = u"CodePage";
constexpr std::u16string_view kOtherKey = u"Backup";
constexpr std::u16string_view kNewValue = u"936";
constexpr std::size_t kTriedRepositories = 5;

void ChangeOneValue(const std::filesystem::path& path, const CodePage& codePage) {
  ProfileFile file(path, &codePage);
  const auto other = file.Value(kSection, kOtherKey);
  const auto elsewhere = file.Value(u"Repository", u"Size");
  if (!file.SetValue(kSection, kKey, kNewValue)) return;
  Require(file.Value(kSection, kOtherKey) == other);
  Require(file.Value(u"Repository", u"Size") == elsewhere);
  // Read again, 8-bit text may pass for UTF-8 if the only bytes that were not valid UTF-8 were in the changed
  // line.
  test::WriteBytes(path, file.Bytes());
  Require(ProfileFile(path, &codePage).Value(kSection, kKey) == kNewValue);
}

void ReadRepositories(const std::filesystem::path& path, const CodePage& codePage) {
  ExamImport import(path, codePage);
  import.m_strDocPath = path;
  import.Open();
  const std::vector<std::u16string> repositories = import.Repositories();
  for (std::size_t i = 0; i < std::min(kTriedRepositories, repositories.size()); ++i) {
    import.m_strRepository = repositories[i];
    if (import.Accept() == 0) Require(!import.m_strPattern.empty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  static const test::TestCodePage codePage;
  const auto path = test::WriteBytes(folder / "system.ini", {reinterpret_cast<const char*>(data), size});
  Require(!ChooseCodePage(folder.Path(), 0).empty());
  ReadRepositories(path, codePage);
  ChangeOneValue(path, codePage);
  return 0;
}
