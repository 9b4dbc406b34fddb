// SPDX-License-Identifier: MIT
#include "render/sheets/SheetParts.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/SheetTexts.h"
#include "render/Template.h"
#include "render/sheets/ReadingDirection.h"
#include "render/sheets/SheetStyle.h"
#include "text/HtmlEscape.h"
#include "text/LineBreaks.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

constexpr Template<Text> kField{uR"(<div class="text">%s</div>)"};
constexpr Template<Text> kRow{uR"(<div class="row"><div>%s</div></div>\n)"};
constexpr Template<Text> kTitle{uR"(<div class="title" dir="auto">%s</div>)"};
constexpr Template<Text> kSubtitle{uR"(<div class="subtitle"><bdi>%s</bdi></div>)"};
constexpr Template<Text> kNames{uR"(<div class="names">%s</div>)"};
constexpr Template<Text, Text> kName{
    uR"(<div><bdi>%s</bdi></div><div class="blank"><bdi>%s</bdi></div><div class="gap"></div>)"};

/// The direction, the title, the style, whether the print is large, the buttons of the screen, the foot, the
/// rows and the script.
constexpr Template<Text, Text, Text, Text, Text, Text, Text, Text> kPage{
    uR"(<!DOCTYPE html>\n<html dir="%s">\n<head>\n<meta charset="UTF-8">\n<title>%s</title>\n)"
    uR"(<style>%s</style>\n</head>\n<body class="%s">\n%s<div class="foot">%s</div>\n)"
    uR"(<div class="sheet">\n<div class="rows">\n%s</div>\n<div class="reserve"><div></div></div>\n</div>\n)"
    uR"(<script>%s</script>\n</body>\n</html>\n)"};

constexpr Template<Text, Text, Text> kButtons{
    uR"x(<div class="buttons"><input type="button" dir="auto" value="%s" onclick="window.status = 'SheetPrint'">)x"
    uR"x(<input type="button" dir="auto" value="%s" onclick="window.status = 'SheetSave'">)x"
    uR"x(<input type="button" dir="auto" value="%s" onclick="window.status = 'SheetClose'"></div>\n)x"};

constexpr Template<Text> kFootPart{uR"(<bdi>%s</bdi>)"};

std::u16string Foot(const FrameSetExam& exam, const SheetHead& head) {
  std::u16string foot;
  if (!head.versionName.empty())
    foot += kFootPart(Caption(exam, text_id::kSheetVersionNamed, head.versionName));
  if (!head.code.empty()) foot += kFootPart(EscapeHtml(head.code));
  return foot.empty() ? Field(exam.title) : foot;
}

std::u16string Buttons(const FrameSetExam& exam) {
  return kButtons(Caption(exam, text_id::kSheetPrint), Caption(exam, text_id::kSheetSave),
                  Caption(exam, text_id::kSheetClose));
}

}  // namespace

std::u16string Field(std::u16string_view text) {
  return kField(EscapeHtml(WithLineEnds(text, u"\n")));
}

std::u16string Caption(const FrameSetExam& exam, int text) {
  return EscapeHtml(exam.Services().strings.Text(text));
}

std::u16string Caption(const FrameSetExam& exam, int text, std::u16string_view value) {
  return EscapeHtml(FillMessage(exam.Services().strings.Text(text), {value}));
}

std::u16string Row(std::u16string_view content) {
  return kRow(content);
}

std::u16string Heading(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view subtitle,
                       NameLines names) {
  std::u16string heading = kTitle(Field(exam.title));
  if (!subtitle.empty()) heading += kSubtitle(subtitle);
  if (names == NameLines::Wanted) {
    const bool isVersion = !request.head.versionName.empty();
    heading += kNames(kName(Caption(exam, text_id::kSheetName), {}) +
                      kName(Caption(exam, text_id::kSheetClass), {}) +
                      kName(Caption(exam, isVersion ? text_id::kSheetVersion : text_id::kSheetDate),
                            EscapeHtml(request.head.versionName)));
  }
  return Row(heading);
}

std::u16string SheetPage(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view rows) {
  const bool isRightToLeft = RunsRightToLeft(exam, request.languageIsRightToLeft);
  return kPage(isRightToLeft ? u"rtl" : u"ltr", EscapeHtml(exam.title), kSheetStyle,
               request.largePrint ? u"large" : u"", Buttons(exam), Foot(exam, request.head), rows,
               kSheetScript);
}

std::u16string PanePage(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view rows) {
  const bool isRightToLeft = RunsRightToLeft(exam, request.languageIsRightToLeft);
  return kPage(isRightToLeft ? u"rtl" : u"ltr", EscapeHtml(exam.title),
               std::u16string(kSheetStyle) + std::u16string(kPaneStyle), request.largePrint ? u"large" : u"",
               u"", u"", rows, kSheetScript);
}

}  // namespace quorvantis
