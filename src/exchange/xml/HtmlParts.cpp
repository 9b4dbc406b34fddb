// SPDX-License-Identifier: MIT
#include "exchange/xml/HtmlParts.h"

#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Addresses.h"
#include "exchange/markup/MarkupNotes.h"
#include "exchange/xml/Base64.h"
#include "exchange/xml/XmlText.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/HtmlEscape.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kDataScheme = u"data:";

}  // namespace

std::string NameOfQuestion(const ExchangedQuestion& question) {
  const std::u16string words = Excerpt(ExamTextToPlain(question.text));
  return words.empty() ? std::to_string(question.number) : Utf16ToUtf8(words);
}

bool IsPictureName(std::u16string_view name) {
  constexpr std::u16string_view kShown[] = {u"png", u"jpg", u"jpeg", u"gif", u"bmp", u"webp"};
  return std::ranges::find(kShown, ExtensionOrNothing(name)) != std::end(kShown);
}

std::vector<std::u16string> UniqueNames(const std::vector<ExchangedFile>& files) {
  std::vector<std::u16string> names;
  for (const ExchangedFile& file : files) {
    const std::u16string plain = FileNameOf(file.name);
    std::u16string name = plain;
    for (int number = 2; name.empty() || std::ranges::find(names, name) != names.end(); ++number)
      name = FormatInteger(number) + u"-" + plain;
    names.push_back(std::move(name));
  }
  return names;
}

std::vector<std::string> PackageNames(const std::vector<ExchangedFile>& files) {
  std::vector<std::string> names;
  std::vector<std::u16string> taken;  // on disks that do not tell the cases apart
  for (const ExchangedFile& file : files) {
    const std::u16string plain = PackageName(FileNameOf(file.name));
    std::u16string name = plain;
    for (int number = 2; name.empty() || std::ranges::find(taken, AsciiLower(name)) != taken.end(); ++number)
      name = FormatInteger(number) + u"-" + plain;
    taken.push_back(AsciiLower(name));
    names.push_back(Utf16ToUtf8(name));
  }
  return names;
}

std::u16string HtmlOfFiles(const std::vector<ExchangedFile>& files, const std::vector<std::string>& addresses,
                           HtmlDialect dialect) {
  const std::u16string_view end = dialect == HtmlDialect::Xhtml ? u"/>" : u">";
  std::u16string html;
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::u16string address = EscapeHtml(Utf8ToUtf16(addresses[i]));
    const std::u16string name = EscapeHtml(ReplaceLoneSurrogates(files[i].name));
    html.append(u"<br").append(end);
    if (IsPictureName(files[i].name)) {
      html.append(u"<img src=\"").append(address).append(u"\" alt=\"").append(name).append(u"\"").append(end);
    } else {
      html.append(u"<a href=\"").append(address).append(u"\">").append(name).append(u"</a>");
    }
  }
  return html;
}

std::u16string TextOfPart(std::u16string text, const ExchangedQuestion& question, std::size_t first,
                          ExchangeNotes& notes) {
  std::u16string names;
  for (std::size_t i = first; i < question.files.size(); ++i) {
    notes.Tell(text_id::kExchangePictureMoved, {question.files[i].name});
    names.append(i == first ? u"" : u", ").append(question.files[i].name);
  }
  return text.empty() ? PlainToExamText(names) : text;
}

bool TakesFile(const ExchangedQuestion& question, std::u16string_view name, ExchangeNotes& notes) {
  if (question.files.size() < kMaxReadFiles) return true;
  notes.Tell(text_id::kExchangeTooManyFiles, {Excerpt(name)});
  return false;
}

std::u16string HtmlReading::Read(std::u16string_view html, ExchangedQuestion& question) {
  return Take(ReadHtml(html), question);
}

std::u16string HtmlReading::Take(ReadMarkup read, ExchangedQuestion& question) {
  TellMarkupLosses(read.losses, tools_.notes);
  for (const MarkupReference& reference : read.references) {
    if (!TakesFile(question, FileNameIn(reference.address), tools_.notes)) continue;
    auto file = FileOf(reference.address);
    if (!file) {
      tools_.notes.Tell(text_id::kExchangeNotFetched, {Excerpt(reference.address)});
      continue;
    }
    if (WasCalled(file->name, reference.label)) file->name = reference.label;
    if (reference.isFollowed && IsPictureName(file->name))
      tools_.notes.Tell(text_id::kExchangePictureMoved, {file->name});
    const bool isKnown = std::ranges::any_of(
        question.files, [&file](const ExchangedFile& known) { return known.path == file->path; });
    if (!isKnown) question.files.push_back(std::move(*file));
  }
  return std::move(read.text);
}

/// Pictures can also stand in the address itself.
std::optional<ExchangedFile> HtmlReading::FileOf(std::u16string_view address) {
  if (!address.starts_with(kDataScheme)) return find_(address);
  constexpr std::u16string_view kImage = u"data:image/";
  const std::size_t comma = address.find(u',');
  const std::u16string_view head = address.substr(0, comma);
  if (comma == address.npos || !head.starts_with(kImage) || !head.ends_with(u";base64")) return std::nullopt;
  const std::u16string_view type = head.substr(kImage.size(), head.find(u';') - kImage.size());
  const auto bytes = FromBase64(Utf16ToUtf8(address.substr(comma + 1)));
  const std::u16string name = u"picture." + std::u16string(type == u"jpeg" ? u"jpg" : type);
  return bytes && IsPictureName(name) ? tools_.files.Keep(name, *bytes) : std::nullopt;
}

}  // namespace quorvantis
