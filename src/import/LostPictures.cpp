// SPDX-License-Identifier: MIT
#include "import/LostPictures.h"

#include "import/WordReader.h"
#include "import/marking/ImportMarkers.h"
#include "text/NumberText.h"

#include <string_view>
#include <unordered_map>

namespace quorvantis {
namespace {

/// Where the names of pictures stand, by name.
using Places = std::unordered_map<std::u16string, int>;

void FindNames(std::u16string_view text, int question, Places& places) {
  for (std::size_t at = text.find(kPictureSuffix); at != text.npos; at = text.find(kPictureSuffix, at + 1)) {
    std::size_t start = at;
    while (start > 0 && IsDigit(text[start - 1])) --start;
    places.emplace(text.substr(start, at + kPictureSuffix.size() - start), question);
  }
}

Places PlacesOf(const ImportReport& report) {
  Places places;
  if (!report.imported || report.removed > 0) return places;
  int question = report.firstSlot;
  for (const ReadQuestion& read : report.paper.questions) {
    if (question >= report.nextSlot) break;
    FindNames(read.text, question, places);
    FindNames(read.answer, question, places);
    for (const std::u16string& option : read.options) FindNames(option, question, places);
    ++question;
  }
  return places;
}

}  // namespace

std::map<WordResult, PicturesByQuestion> GroupLostPictures(const ImportReport& report) {
  std::map<WordResult, PicturesByQuestion> groups;
  if (!report.content || report.content->lostPictures.empty()) return groups;
  const Places places = PlacesOf(report);
  for (const LostPicture& lost : report.content->lostPictures) {
    const auto place = places.find(PictureFileName(lost.number));
    groups[lost.reason][place == places.end() ? kNoQuestion : place->second].push_back(lost.number);
  }
  return groups;
}

}  // namespace quorvantis
