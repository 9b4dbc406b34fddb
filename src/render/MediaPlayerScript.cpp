// SPDX-License-Identifier: MIT
#include "render/MediaPlayerScript.h"

#include "model/document/ExamServices.h"
#include "platform/IdSource.h"
#include "platform/Registry.h"
#include "render/Template.h"
#include "text/PathText.h"

#include <filesystem>

namespace quorvantis {
namespace {

/// Where a player that users may have installed is registered.
constexpr std::u16string_view kPlayerServer =
    u"CLSID\\{0133388C-C3F2-498D-BEB2-F121744ACE38}\\InprocServer32";
constexpr std::size_t kMaxServerBytes = 260;  // of UTF-16; a longer value is not read

constexpr Template<Text> kStart{
    uR"(<div id="%s"></div>)"
    uR"(<script type="text/javascript">\r\n)"};

constexpr Template<Text, int> kPlainBrowser{
    uR"(    var firefoxHtml = "<embed src=\\"%s\\" autostart=\\"%d\\" width=\\"320\\" ShowStatusBar=\\"1\\">";\r\n)"};

// Where the player named by kPlayerServer is installed.
constexpr Template<Text, int, int> kOwnPlayer{
    uR"(    var vistaHtml = "<object width=\\"480\\" height=\\"360\\" ID=\\"NSPlay\\" standby=\\"Loading MorvellMediaPlayer components...\\" \\\r\n)"
    uR"(                classid=\\"CLSID:0133388C-C3F2-498D-BEB2-F121744ACE38\\" \\\r\n)"
    uR"(                type=\\"application/x-oleobject\\"> \\\r\n)"
    uR"(                <param name=\\"mrl\\" value=\\"%s\\"> \\\r\n)"
    uR"(                <param name=\\"autoStart\\" value=\\"%d\\"> \\\r\n)"
    uR"(                <param name=\\"enableAccelerator\\" value=\\"%d\\"> \\\r\n)"};
constexpr Template<int> kOwnPlayerAudio{
    uR"(                <param name=\\"enableAudio\\" value=\\"%d\\"> \\\r\n)"};

constexpr Template<Text> kSystemPlayer{
    uR"(    var vistaHtml = "<object width=\\"320\\" ID=\\"NSPlay\\" standby=\\"Loading Microsoft Windows Media Player components...\\" \\\r\n)"
    uR"(                classid=\\"CLSID:6BF52A52-394A-11D3-B153-00C04F79FAA6\\" \\\r\n)"
    uR"(                type=\\"application/x-oleobject\\"> \\\r\n)"
    uR"(                <param name=\\"AutoSize\\" value=\\"-1\\"> \\\r\n)"
    uR"(                <param name=\\"url\\" value=\\"%s\\"> \\\r\n)"
    uR"(                <param name=\\"ShowStatusBar\\" value=\\"1\\"> \\\r\n)"
    uR"(                <param name=\\"uiMode\\" value=\\"mini\\"> \\\r\n)"
    uR"(                <param name=\\"enableContextMenu\\" value=\\"0\\"> \\\r\n)"};

constexpr Template<> kPlayerEnd{uR"(                </object>";\r\n)"};

constexpr Template<Text, int> kOldPlayer{
    uR"(    var NoVistaHtml = "<object WIDTH=320 ID=\\"NSPlay\\" standby=\\"Loading Microsoft Windows Media Player components...\\" \\\r\n)"
    uR"(\t            classid=\\"CLSID:22D6F312-B0F6-11D0-94AB-0080C74C7E95\\" \\\r\n)"
    uR"(\t            type=\\"application/x-oleobject\\"> \\\r\n)"
    uR"(\t            <param name=\\"AutoSize\\" value=\\"-1\\"> \\\r\n)"
    uR"(                <param name=\\"FileName\\" value=\\"%s\\"> \\\r\n)"
    uR"(\t            <param name=\\"ShowStatusBar\\" value=\\"-1\\"> \\\r\n)"
    uR"(                <param name=\\"AutoPlay\\" value=\\"%d\\"> \\\r\n)"
    uR"(\t            </object>";\r\n)"};

// The first line occurs twice in every page ever written.
constexpr Template<> kDetection{
    uR"x(    var IsWinXP = (navigator["userAgent"].indexOf("Windows NT 5.1") != -1);\r\n)x"
    uR"x(    var IsWinXP = (navigator["userAgent"].indexOf("Windows NT 5.1") != -1);\r\n)x"
    uR"x(    var IsVsita = (navigator["userAgent"].indexOf("Windows NT 6") != -1);\r\n)x"
    uR"x(    var IsWindows7 = (navigator["userAgent"].indexOf("Windows NT 7") != -1);\r\n)x"
    uR"x(    var IsWindows8 = (navigator["userAgent"].indexOf("Windows NT 8") != -1);\r\n)x"
    uR"x(    var IsIE = (navigator["userAgent"].indexOf("MSIE") != -1);\r\n)x"};

constexpr Template<Text, Text, Text> kChoice{
    uR"x(    if (IsIE){\r\n)x"
    uR"x(        if (IsVsita || IsWinXP || IsWindows7 || IsWindows8){\r\n)x"
    uR"x(            document.getElementById("%s").innerHTML = vistaHtml;\r\n)x"
    uR"x(        }else{\r\n)x"
    uR"x(            document.getElementById("%s").innerHTML = NoVistaHtml;\r\n)x"
    uR"x(        }\r\n)x"
    uR"x(    }else{\r\n)x"
    uR"x(            document.getElementById("%s").innerHTML = firefoxHtml;\r\n)x"
    uR"x(    }\r\n)x"
    uR"x(</script>\r\n)x"};

/// The text of a registry value up to its terminator.
std::u16string RegisteredText(const std::vector<std::byte>& bytes) {
  std::u16string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text.push_back(
        static_cast<char16_t>(std::to_integer<int>(bytes[i]) | std::to_integer<int>(bytes[i + 1]) << 8));
  }
  return text.substr(0, text.find(u'\0'));
}

bool HasOwnPlayer(Registry& registry) {
  const auto key = registry.OpenKey(RegistryRoot::ClassesRoot, kPlayerServer);
  const std::optional<RegistryValue> server = key ? key->QueryValue(u"") : std::nullopt;
  if (!server || server->bytes.size() > kMaxServerBytes) return false;
  std::error_code ignored;
  return std::filesystem::exists(TextToPath(RegisteredText(server->bytes)), ignored);
}

}  // namespace

std::u16string MediaPlayerScript(const ExamServices& services, std::u16string_view source, int autostart,
                                 bool noAudio) {
  const std::u16string escaped = DoubleBackslashes(source);
  const std::u16string id = services.ids.NewId();
  std::u16string script = kStart(id) + kPlainBrowser(escaped, autostart);
  if (HasOwnPlayer(services.registry)) {
    script += kOwnPlayer(escaped, autostart, 0);
    if (noAudio) script += kOwnPlayerAudio(0);
  } else {
    script += kSystemPlayer(escaped);
  }
  return script + kPlayerEnd() + kOldPlayer(escaped, autostart) + kDetection() + kChoice(id, id, id);
}

std::u16string DoubleBackslashes(std::u16string_view text) {
  std::u16string doubled;
  for (const char16_t unit : text) doubled.append(unit == u'\\' ? 2 : 1, unit);
  return doubled;
}

}  // namespace quorvantis
