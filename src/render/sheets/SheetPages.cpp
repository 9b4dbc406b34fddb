// SPDX-License-Identifier: MIT
#include "render/sheets/SheetPages.h"

#include "model/document/ExamServices.h"
#include "render/PageFile.h"
#include "render/PageSources.h"
#include "render/sheets/AnswerSheetPage.h"
#include "render/sheets/KeyPage.h"
#include "render/sheets/PaperPage.h"

namespace quorvantis {
namespace {

const char* PageName(Sheet sheet) {
  switch (sheet) {
    case Sheet::Paper:
      return "exam_Paper.htm";
    case Sheet::Solutions:
      return "exam_Solutions.htm";
    case Sheet::Key:
      return "exam_Key.htm";
    case Sheet::Answers:
      return "exam_Answers.htm";
  }
  return "";
}

}  // namespace

std::u16string ComposeSheet(const FrameSetExam& exam, const SheetRequest& request) {
  switch (request.sheet) {
    case Sheet::Paper:
      return ComposePaper(exam, request);
    case Sheet::Solutions:
      return ComposeSolutions(exam, request);
    case Sheet::Key:
      return ComposeKey(exam, request);
    case Sheet::Answers:
      return ComposeAnswerSheet(exam, request);
  }
  return {};
}

std::filesystem::path SheetPageFile(const FrameSetExam& exam, Sheet sheet) {
  return exam.Services().applicationFolder / PageName(sheet);
}

std::filesystem::path WriteSheet(const FrameSetExam& exam, const SheetRequest& request) {
  AddPageSources(exam);
  std::filesystem::path file = SheetPageFile(exam, request.sheet);
  PageFile(file, exam.Services().pages).WriteText(ComposeSheet(exam, request));
  return file;
}

}  // namespace quorvantis
