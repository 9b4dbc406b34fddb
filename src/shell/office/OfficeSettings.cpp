// SPDX-License-Identifier: MIT
#include "shell/office/OfficeSettings.h"

#include "platform/Registry.h"
#include "text/PathText.h"

#include <string>

namespace quorvantis {
namespace {

struct BrowsableType {
  std::u16string_view classKey;
  std::uint32_t browserFlags;
};

constexpr BrowsableType kBrowsableTypes[] = {{u"Word.Document.8", 0},   {u"Word.Document.12", 0x24},
                                             {u"PowerPoint.Show.8", 2}, {u"PowerPoint.Show.12", 2},
                                             {u"Excel.Sheet.8", 0},     {u"Excel.Sheet.12", 0}};

constexpr std::uint32_t kOpenWithoutAsking = 0x10000;  // edit flags

constexpr std::u16string_view kInternetZone =
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\3";

constexpr std::u16string_view kLocation = u"LocationQuorvantis";

std::u16string TrustedLocations(std::u16string_view application) {
  return u"Software\\Microsoft\\Office\\12.0\\" + std::u16string(application) +
         u"\\Security\\Trusted Locations\\";
}

RegistryValue Number(std::uint32_t number) {
  RegistryValue value{RegistryType::Dword, {}};
  for (int shift = 0; shift < 32; shift += 8) value.bytes.push_back(std::byte((number >> shift) & 0xFF));
  return value;
}

/// Deliberately as many bytes as the path has characters, which is its first half without a terminator:
/// earlier versions store the same value.
RegistryValue HalfPath(const std::filesystem::path& path) {
  const std::u16string text = PathToText(path);
  RegistryValue value{RegistryType::String, {}};
  for (const char16_t unit : text) {
    value.bytes.push_back(std::byte(unit & 0xFF));
    value.bytes.push_back(std::byte(unit >> 8));
  }
  value.bytes.resize(text.size());
  return value;
}

}  // namespace

void OfficeSettings::RegisterBrowsableTypes() {
  for (const BrowsableType& type : kBrowsableTypes) {
    const auto key = services_.registry.OpenKey(RegistryRoot::ClassesRoot, type.classKey);
    if (!key) continue;
    key->SetValue(u"EditFlags", Number(kOpenWithoutAsking));
    key->SetValue(u"BrowserFlags", Number(type.browserFlags));
  }
}

void OfficeSettings::AllowZoneAction() {
  const auto zone = services_.registry.OpenKey(RegistryRoot::CurrentUser, kInternetZone);
  if (zone) zone->SetValue(u"2103", Number(0));
}

void OfficeSettings::SetTrustedLocation(std::u16string_view application, bool enable) {
  Registry& registry = services_.registry;
  const std::u16string locations = TrustedLocations(application);
  if (!registry.OpenKey(RegistryRoot::CurrentUser, locations)) return;
  const std::u16string location = locations + std::u16string(kLocation);
  if (!enable) {
    registry.DeleteKey(RegistryRoot::CurrentUser, location);
    return;
  }
  const auto key = registry.CreateKey(RegistryRoot::CurrentUser, location);
  if (!key) return;
  key->SetValue(u"AllowSubfolders", Number(1));
  key->SetValue(u"Path", HalfPath(services_.applicationFolder));
}

}  // namespace quorvantis
