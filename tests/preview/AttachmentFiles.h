// SPDX-License-Identifier: MIT
// Small attached files of each kind, created by the test.
#pragma once

#include <QProcess>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <string>

namespace quorvantis::test {

/// A word-processor document with one paragraph.
inline std::string RichText(const std::string& paragraph) {
  return "{\\rtf1\\ansi\\fs48 " + paragraph + "\\par}";
}

/// Two seconds of video with a tone, in a format that the browser does not play.
inline bool MakeOldFilm(const std::filesystem::path& file) {
  std::filesystem::create_directories(file.parent_path());
  return QProcess::execute(
             "ffmpeg", {"-nostdin", "-v", "error", "-f", "lavfi", "-i", "testsrc=d=2:s=161x121:r=10", "-f",
                        "lavfi", "-i", "sine=d=2", "-c:v", "mpeg4", "-c:a", "adpcm_ms", file.c_str()}) == 0;
}

/// The start of a recording that plays everywhere; `samples` bytes of sound follow, 8000 per second.
inline std::string RecordingHead(std::uint32_t samples) {
  const auto number = [](std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text.push_back(static_cast<char>(value >> (8 * i)));
    return text;
  };
  return "RIFF" + number(36 + samples, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(8000, 4) + number(8000, 4) + number(1, 2) + number(8, 2) + "data" + number(samples, 4);
}

/// A recording of one second.
inline std::string Silence() {
  constexpr std::uint32_t kSamples = 8000;
  return RecordingHead(kSamples) + std::string(kSamples, '\x80');
}

/// A picture of 2 by 1 pixels.
inline std::string SmallBitmap() {
  return std::string(
      "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\0\0\0\xFF\0\0\0",
      62);
}

/// A solid red clip of 550 by 400 pixels.
inline std::string RedFlash() {
  const std::string body =
      std::string("\x78\0\x05\x5F\0\0\x0F\xA0\0", 9) +  // the size of the stage, in twips
      std::string("\0\x0C\x01\0", 4) +                  // 12 pictures a second, 1 of them
      std::string("\x43\x02\xFF\0\0", 5) +              // the background
      std::string("\x40\0\0\0", 4);                     // the picture and the end
  const auto size = static_cast<char>(8 + body.size());
  return std::string("FWS\x06") + size + std::string(3, '\0') + body;
}

/// A document with one empty page.
inline constexpr char kPortable[] =
    "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj 2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj "
    "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]>>endobj\ntrailer<</Root 1 0 R>>\n%%EOF\n";

/// The pages' player script, as far as this browser runs it.
inline std::string PlayerScript(const std::string& source, int autostart = 0) {
  static int number = 0;
  const std::string id = "{" + std::to_string(++number) + "}";
  return "<div id=\"" + id +
         "\"></div><script type=\"text/javascript\">\r\n    var firefoxHtml = \"<embed src=\\\"" + source +
         "\\\" autostart=\\\"" + std::to_string(autostart) +
         "\\\" width=\\\"320\\\" ShowStatusBar=\\\"1\\\">\";\r\n    document.getElementById(\"" + id +
         "\").innerHTML = firefoxHtml;\r\n</script>";
}

/// The markup on pages for an attached file, by its name.
inline std::string ItemOf(const std::string& source) {
  const std::string extension = source.substr(source.rfind('.') + 1);
  const auto isOneOf = [&](const char* names) {
    return std::string(names).find(extension + ' ') != std::string::npos;
  };
  if (isOneOf("jpg bmp ")) return "<img src=\"" + source + "\" ></img><br>";
  if (isOneOf("doc ppt pptx xls txt ")) {
    return "<iframe width=690 height=60 src=\"" + source + "\" ></iframe><br>";
  }
  if (isOneOf("swf ")) return "<div><embed src=\"" + source + "\" width=\"650\" height=\"400\"></div><br>";
  return PlayerScript(source);
}

}  // namespace quorvantis::test
