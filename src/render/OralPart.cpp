// SPDX-License-Identifier: MIT
#include "render/OralPart.h"

#include "model/PageRenderer.h"
#include "model/WorkFolderNames.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"
#include "render/AttachmentItems.h"
#include "render/MediaPlayerScript.h"
#include "render/Template.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <filesystem>

namespace quorvantis {
namespace {

constexpr Text kVideo = u"wmv";
constexpr Text kAudio = u"wma";

// Folders and files of recordings.
constexpr Template<Text, Text, int, int> kRecorderTarget{uR"(%s/%s/ID%d/%d.wmv)"};
constexpr Template<Text, Text, Text, int, Text> kStoredRecording{uR"(%s/%s/ID%s/%d.%s)"};
constexpr Template<int, int, Text> kOralAnswer{uR"(ID%d/%d.%s)"};
constexpr Template<Text, Text> kOralAnswerFolder{uR"(%s/%s)"};
constexpr Template<Text, Text, Text> kPlayedCopy{uR"(%s/%s/~Ans/%s)"};

constexpr Template<Text, int, int, Text> kRecorder{
    uR"(<br>\r\n)"
    uR"(<object classid="clsid:66888801-5638-11D7-80BC-8F534BAF637B" id="ORAL1" width="474" height="280">\r\n)"
    uR"(<param name="_ExtentX" value="6350">\r\n)"
    uR"(<param name="_ExtentY" value="2302">\r\n)"
    uR"(<param name="BackColor" value="0">\r\n)"
    uR"(<param name="ForeColor" value="0">\r\n)"
    uR"(<param name="Enabled" value="0">\r\n)"
    uR"(<param name="BackStyle" value="0">\r\n)"
    uR"(<param name="BorderStyle" value="0">\r\n)"
    uR"(<param name="Localpath" value="%s">\r\n)"
    uR"(<param name="Encode_seting" value="%d">\r\n)"
    uR"(<param name="rec_limit_time" value="%d">\r\n)"
    uR"(<param name="reclimits" value="00:10:00">\r\n)"
    uR"(<param name="AllowEncVideo" value="%s">\r\n)"
    uR"(</object><br>\r\n)"};
constexpr int kEncoding = 24;
constexpr int kMinutes = 10;

constexpr Template<Text> kByTeacher{uR"(<font color="green">%s</font><br><br>\r\n)"};
constexpr Template<> kBelowRecorder{uR"(<font color=ff0000></font><br><br><br>)"};
constexpr Template<Text> kYourAnswer{uR"(<font color=0000ff>%s  :</font><br><br>\r\n)"};
constexpr Template<Text> kOralSubject{uR"(<font color=0000ff>%s</font><br><br>\r\n)"};

bool Exists(const std::u16string& file) {
  std::error_code ignored;
  return std::filesystem::exists(TextToPath(file), ignored);
}

/// Relative to the current directory, unlike the copy that is played.
bool OralAnswerExists(const std::u16string& file) {
  return Exists(kOralAnswerFolder(u"~OralAns", file));
}

}  // namespace

std::u16string OralPart::Label(int text) const {
  return services_.strings.Text(text);
}

std::u16string OralPart::OralRecorderObject(int index) const {
  const std::u16string folder = DoubleBackslashes(PathToText(services_.applicationFolder));
  const std::u16string target =
      kRecorderTarget(folder, kStudentFolders, ParseInteger(renderer_.studentIdText), index + 1);
  return kRecorder(target, kEncoding, kMinutes, renderer_.allowVideoRecording != 0 ? u"True" : u"False");
}

/// The student's number as text, while the recorder and the pages read it as a number: "007" records into ID7
/// and is played from ID007. Deliberate: the program that collects the recordings names the folders this way.
std::u16string OralPart::StoredRecording(int index, std::u16string_view extension) const {
  return kStoredRecording(PathToText(services_.applicationFolder), kStudentFolders, renderer_.studentIdText,
                          index + 1, extension);
}

std::u16string OralPart::StoredRecordingItem(int index) const {
  for (const Text extension : {kVideo, kAudio}) {
    const std::u16string file = StoredRecording(index, extension);
    if (Exists(file)) return AttachmentItem(services_, file, 0);
  }
  return {};
}

std::u16string OralPart::OralAnswerItem(int index, int studentNumber) const {
  for (const Text extension : {kVideo, kAudio}) {
    const std::u16string file = kOralAnswer(studentNumber, index + 1, extension);
    if (!OralAnswerExists(file)) continue;
    return AttachmentItem(services_,
                          kPlayedCopy(PathToText(services_.applicationFolder), kStudentFolders, file), 0);
  }
  return {};
}

std::u16string OralPart::OralBlock(int index, int studentNumber, const RenderFlags& flags) const {
  if (flags == kPrintPage) {
    if (renderer_.mediaSuppressed != 0) return kByTeacher(Label(text_id::kOralByTeacher));
    return OralRecorderObject(index) + kBelowRecorder();
  }
  if (flags == kResultPage) return kYourAnswer(Label(text_id::kYourAnswerIs)) + StoredRecordingItem(index);
  if (flags == kPreviewPage || flags == kKeyPage) return kOralSubject(Label(text_id::kOralSubject));
  if (flags == kResponsePage) return OralAnswerItem(index, studentNumber);
  return {};
}

OralMarkKind OralPart::OralMark(int index, int studentNumber, const RenderFlags& flags) const {
  bool answered = true;
  if (flags == kResultPage) {
    answered = Exists(StoredRecording(index, kVideo)) || Exists(StoredRecording(index, kAudio));
  } else if (flags == kResponsePage) {
    answered = OralAnswerExists(kOralAnswer(studentNumber, index + 1, kVideo)) ||
               OralAnswerExists(kOralAnswer(studentNumber, index + 1, kAudio));
  }
  return answered ? OralMarkKind::Plain : OralMarkKind::Wrong;
}

}  // namespace quorvantis
