// SPDX-License-Identifier: MIT
#include "shell/language/BuiltInDialogTexts.h"

#include "platform/DialogTexts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quorvantis {
namespace {

struct ControlText {
  std::pair<int, int> place;  ///< dialog and control
  std::u16string_view text;
};

// Wording, spelling and language are what users of the program know; all stay as they are.
constexpr ControlText kControlTexts[] = {
    {{dialog_id::kAbout, control_id::kCaption}, u"Quorvantis"},
    {{dialog_id::kAbout, control_id::kOk}, u"OK"},
    {{dialog_id::kAbout, control_id::kFirstLabel}, u"Quorvantis Verson 6.2"},
    {{dialog_id::kImport, control_id::kCaption}, u"ImportExam"},
    {{dialog_id::kImport, control_id::kOk}, u"导入试卷"},
    {{dialog_id::kImport, control_id::kCancel}, u"取消"},
    {{dialog_id::kImport, control_id::kBrowse}, u"浏览"},
    {{dialog_id::kImport, control_id::kFirstLabel}, u"WORD文档路径"},
    {{dialog_id::kImport, control_id::kSecondLabel}, u"知识库"},
    {{dialog_id::kImportWait, control_id::kCaption}, u"提示"},
    {{dialog_id::kImportWait, control_id::kFirstLabel}, u"试卷导入中，请稍后"},
    {{dialog_id::kFormula, control_id::kCaption}, u"公式处理"},
    {{dialog_id::kFormula, control_id::kFirstLabel}, u"公式无法显示"},
    {{dialog_id::kFormula, control_id::kSecondLabel}, u"(用##代替)"},
    {{dialog_id::kFormula, control_id::kGiveUp}, u"放弃"},
    {{dialog_id::kFormula, control_id::kIgnoreQuestions}, u"忽略相关题"},
    {{dialog_id::kFormula, control_id::kForceImport}, u"强行导入"},
    {{dialog_id::kPicture, control_id::kCaption}, u"图片处理"},
    {{dialog_id::kPicture, control_id::kFirstLabel}, u"答案中的图片无法显示"},
    {{dialog_id::kPicture, control_id::kGiveUp}, u"放弃"},
    {{dialog_id::kPicture, control_id::kIgnoreQuestions}, u"忽略相关题"},
    {{dialog_id::kPicture, control_id::kForceImport}, u"强行导入"},
    {{dialog_id::kImportTarget, control_id::kCaption}, u"请选择"},
    {{dialog_id::kImportTarget, control_id::kOk}, u"继续导入"},
    {{dialog_id::kImportTarget, control_id::kCancel}, u"创建新的试卷"},
};

}  // namespace

std::u16string BuiltInDialogText(int dialog, int control) {
  const auto* found = std::ranges::find(kControlTexts, std::pair(dialog, control), &ControlText::place);
  return found == std::end(kControlTexts) ? std::u16string() : std::u16string(found->text);
}

std::vector<std::pair<int, int>> BuiltInDialogControls() {
  std::vector<std::pair<int, int>> places;
  std::ranges::transform(kControlTexts, std::back_inserter(places), &ControlText::place);
  return places;
}

}  // namespace quorvantis
