// SPDX-License-Identifier: MIT
#include "desktop/main/controls/NavigationButtons.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/main/controls/Attaching.h"
#include "platform/texts/ProgramTexts.h"

namespace quorvantis {
namespace {

constexpr SmallButtonBitmaps kNextBitmaps{"NextQuestionU", "NextQuestiond", "NextQuestionf", "NextQuestionx"};
constexpr SmallButtonBitmaps kForward10Bitmaps{"NextQuestion10U", "NextQuestion10d", "NextQuestion10f",
                                               "NextQuestion10x"};
constexpr SmallButtonBitmaps kPreviousBitmaps{"PreviousQuestionU", "PreviousQuestiond", "PreviousQuestionf",
                                              "PreviousQuestionx"};
constexpr SmallButtonBitmaps kBack10Bitmaps{"PreviousQuestion10U", "PreviousQuestion10d",
                                            "PreviousQuestion10f", "PreviousQuestion10x"};
constexpr SmallButtonBitmaps kDelete{"DeleteU", "Deleted", "Deletef", "Deletex"};
constexpr SmallButtonBitmaps kInsert{"insertU", "insertd", "insertf", "insertx"};
constexpr SmallButtonBitmaps kAttach{"attachqu", "attachqd", "attachqf", "attachqx"};

using NavigationCommand = void (*)(ExamEditor& editor);

template <void (QuestionEditor::*command)()>
void RunNavigation(ExamEditor& editor) {
  (editor.questions.*command)();
}

struct NavigationButtonSpec {
  const char* name;
  const SmallButtonBitmaps& bitmaps;
  const SmallButtonBitmaps& mirrored;
  int tip;
  Keys keys;
  NavigationCommand command;
};

/// In the order of `InOrder`.
const NavigationButtonSpec kNavigationSpecs[NavigationButtons::kCount] = {
    {"back10",
     kBack10Bitmaps,
     kForward10Bitmaps,
     text_id::kBackward10,
     {Qt::ALT | Qt::Key_B, Qt::CTRL | Qt::Key_PageUp},
     RunNavigation<&QuestionEditor::GoBack10>},
    {"previous",
     kPreviousBitmaps,
     kNextBitmaps,
     text_id::kPrevious,
     {Qt::ALT | Qt::Key_U, Qt::Key_PageUp},
     RunNavigation<&QuestionEditor::GoPrevious>},
    {"next",
     kNextBitmaps,
     kPreviousBitmaps,
     text_id::kNext,
     {Qt::ALT | Qt::Key_X, Qt::Key_PageDown},
     RunNavigation<&QuestionEditor::GoNext>},
    {"forward10",
     kForward10Bitmaps,
     kBack10Bitmaps,
     text_id::kForward10,
     {Qt::ALT | Qt::Key_W, Qt::CTRL | Qt::Key_PageDown},
     RunNavigation<&QuestionEditor::GoForward10>},
    {"insertQuestion",
     kInsert,
     kInsert,
     text_id::kInsertQuestion,
     {Qt::ALT | Qt::Key_J},
     RunNavigation<&QuestionEditor::InsertHere>},
    {"deleteQuestion",
     kDelete,
     kDelete,
     text_id::kDeleteQuestion,
     {Qt::ALT | Qt::Key_D},
     RunNavigation<&QuestionEditor::DeleteHere>},
    {"attachToQuestion",
     kAttach,
     kAttach,
     text_id::kAttachToQuestion,
     {Qt::ALT | Qt::Key_K},
     AttachToQuestion},
};

}  // namespace

NavigationButtons::NavigationButtons(ExamEditor& editor, const StringTable& strings, const Pictures& pictures,
                                     QWidget* parent) {
  for (std::size_t i = 0; i < kCount; ++i) {
    const NavigationButtonSpec& spec = kNavigationSpecs[i];
    buttons_[i] = new SmallButton(pictures, spec.bitmaps, spec.mirrored, parent);
    const QString tip = ToQString(strings.Text(spec.tip));
    SetUpButton(buttons_[i], spec.name, tip, spec.keys,
                [&editor, command = spec.command] { command(editor); });
    buttons_[i]->setToolTip(PlainTip(tip));
  }
}

}  // namespace quorvantis
