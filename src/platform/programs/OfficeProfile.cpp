// SPDX-License-Identifier: MIT
#include "platform/programs/OfficeProfile.h"

#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvantis {
namespace {

struct Setting {
  std::string_view group;
  std::string_view name;
  std::string_view value;
};

constexpr std::string_view kScripting = "/org.openoffice.Office.Common/Security/Scripting";
constexpr std::string_view kInternet = "/org.openoffice.Inet/Settings";

/// Nothing listens at the proxy's address.
constexpr Setting kSettings[] = {
    {kScripting, "BlockUntrustedRefererLinks", "true"},
    {kScripting, "DisableMacrosExecution", "true"},
    {kScripting, "MacroSecurityLevel", "3"},
    {kInternet, "ooInetProxyType", "2"},
    {kInternet, "ooInetHTTPProxyName", "127.0.0.1"},
    {kInternet, "ooInetHTTPProxyPort", "9"},
    {kInternet, "ooInetHTTPSProxyName", "127.0.0.1"},
    {kInternet, "ooInetHTTPSProxyPort", "9"},
    {kInternet, "ooInetFTPProxyName", "127.0.0.1"},
    {kInternet, "ooInetFTPProxyPort", "9"},
    {kInternet, "ooInetNoProxy", ""},
};

/// We choose the profile's path, so nothing in it needs escaping in a URL unless the folder for temporary
/// files has an unusual name.
std::string AddressOf(const std::filesystem::path& folder) {
  static constexpr std::string_view kHexadecimal = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char c : folder.string()) {
    const bool isPlain =
        (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '-' && c <= '9') || c == '_';
    const auto byte = static_cast<unsigned char>(c);
    if (isPlain)
      address += c;
    else
      address.append({'%', kHexadecimal[byte >> 4U], kHexadecimal[byte & 15U]});
  }
  return address;
}

}  // namespace

void WriteOfficeProfile(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder / "user", error);
  std::ofstream out(folder / "user" / "registrymodifications.xcu");
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\""
         " xmlns:xs=\"http://www.w3.org/2001/XMLSchema\""
         " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n";
  for (const Setting& setting : kSettings) {
    out << "<item oor:path=\"" << setting.group << "\"><prop oor:name=\"" << setting.name
        << "\" oor:op=\"fuse\"><value>" << setting.value << "</value></prop></item>\n";
  }
  out << "</oor:items>\n";
}

std::vector<std::string> OfficeArguments(const std::filesystem::path& profile, const std::string& filter,
                                         const std::string& format, const std::filesystem::path& input) {
  return {"-env:UserInstallation=" + AddressOf(profile),
          "--headless",
          "--norestore",
          "--infilter=" + filter,
          "--convert-to",
          format,
          "--outdir",
          input.parent_path().string(),
          input.string()};
}

}  // namespace quorvantis
