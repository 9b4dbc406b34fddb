// SPDX-License-Identifier: MIT
#include "desktop/studio/SaveRulesDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/StudioTexts.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QPushButton>

#include <utility>

namespace quorvantis {
namespace {

constexpr int kNameWidth = 460;  // pixels

}  // namespace

SaveRulesDlg::SaveRulesDlg(const QString& proposed, Save save, const StringTable& strings, QWidget* parent)
    : QDialog(parent), save_(std::move(save)), name_(new QLineEdit(proposed, this)), why_(new QLabel(this)) {
  setObjectName("saveRules");
  setWindowTitle(ToQString(strings.Text(text_id::kSaveRulesAs)));
  auto* label = new QLabel(ToQString(strings.Text(text_id::kRulesName)), this);
  label->setBuddy(name_);
  NameControl(name_, "rulesName", label->text());
  name_->setMinimumWidth(kNameWidth);
  name_->selectAll();
  NameControl(why_, "whyNotSaved", {});
  why_->setTextFormat(Qt::PlainText);
  why_->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(ToQString(strings.Text(text_id::kOk)), QDialogButtonBox::AcceptRole);
  buttons->addButton(ToQString(strings.Text(text_id::kClose)), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &SaveRulesDlg::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &SaveRulesDlg::reject);
  auto* layout = new QVBoxLayout;
  for (QWidget* part : std::initializer_list<QWidget*>{label, name_, why_, buttons}) layout->addWidget(part);
  setLayout(layout);
}

void SaveRulesDlg::accept() {
  const std::optional<std::u16string> why = save_(FromQString(name_->text()));
  if (!why) return QDialog::accept();
  why_->setText(ToQString(*why));
  why_->setAccessibleName(why_->text());
  QAccessibleEvent told(why_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
  name_->setFocus();
  // Layouts give a text that is wrapped the height that it had when it was empty.
  why_->setMinimumHeight(why_->heightForWidth(name_->width()));
  adjustSize();
}

}  // namespace quorvantis
