// SPDX-License-Identifier: MIT
#include "desktop/ImportWindows.h"

#include "desktop/ExamImportDlg.h"
#include "platform/UserDialogs.h"
#include "shell/ImportSummary.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

/// A question with a button for each answer.
class ChoiceDialog : public QDialog {
 public:
  ChoiceDialog(const char* name, const char* caption, const QStringList& lines, QWidget* parent)
      : QDialog(parent), layout_(new QVBoxLayout(this)) {
    setObjectName(name);
    setWindowTitle(QString::fromUtf8(caption));
    for (const QString& line : lines) layout_->addWidget(new QLabel(line, this));
  }

  void Offer(const char* caption, int answer) {
    auto* button = new QPushButton(QString::fromUtf8(caption), this);
    layout_->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
  }

 private:
  QVBoxLayout* layout_;
};

/// A dialog that is closed otherwise gives 0, which is None.
ChoiceResult AskWhatToDo(ChoiceDialog& dialog) {
  dialog.Offer("放弃", static_cast<int>(ChoiceResult::GiveUp));
  dialog.Offer("忽略相关题", static_cast<int>(ChoiceResult::IgnoreRelated));
  dialog.Offer("强行导入", static_cast<int>(ChoiceResult::Force));
  return static_cast<ChoiceResult>(dialog.exec());
}

}  // namespace

ImportTarget ImportWindows::AskTarget() {
  ChoiceDialog dialog("importTarget", "请选择", {}, &parent_);
  dialog.Offer("继续导入", QDialog::Accepted);
  dialog.Offer("创建新的试卷", QDialog::Rejected);
  return dialog.exec() == QDialog::Accepted ? ImportTarget::Continue : ImportTarget::NewExam;
}

bool ImportWindows::AskDocument(ExamImport& import) {
  return ExamImportDlg(import, services_, &parent_).exec() == QDialog::Accepted;
}

ChoiceResult ImportWindows::AskPictures() {
  ChoiceDialog dialog("pictures", "图片处理", {QString::fromUtf8("答案中的图片无法显示")}, &parent_);
  return AskWhatToDo(dialog);
}

ChoiceResult ImportWindows::AskFormulas() {
  ChoiceDialog dialog("formulas", "公式处理",
                      {QString::fromUtf8("公式无法显示"), QString::fromUtf8("(用##代替)")}, &parent_);
  return AskWhatToDo(dialog);
}

void ImportWindows::ShowWait() {
  wait_ = new ChoiceDialog("importWait", "提示", {QString::fromUtf8("试卷导入中，请稍后")}, &parent_);
  wait_->setAttribute(Qt::WA_DeleteOnClose);
  wait_->show();
  wait_->repaint();
}

void ImportWindows::HideWait() {
  if (wait_) wait_->close();
}

void ImportWindows::ShowFailure(std::u16string_view text) {
  services_.dialogs.ShowError(text);
}

/// Says nothing when there is nothing to look at.
void ImportWindows::ShowReport(const ImportReport& report) {
  std::u16string text;
  const auto lines = ImportSummary(report);
  for (const std::u16string& line : lines) text += (text.empty() ? u"" : u"\n") + line;
  if (lines.size() > 1) services_.dialogs.ShowWarning(text);
}

}  // namespace quorvantis
