// SPDX-License-Identifier: MIT
#include "desktop/studio/MarksQuestion.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/StudioTexts.h"

#include <QMessageBox>
#include <QPushButton>

namespace quorvantis {

bool MayLoseMarks(const StringTable& strings, QWidget* parent) {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("Quorvantis"),
                  ToQString(strings.Text(text_id::kLoseMarks)), QMessageBox::NoButton, parent);
  box.setObjectName("loseMarks");
  box.setTextFormat(Qt::PlainText);
  QPushButton* close =
      box.addButton(ToQString(strings.Text(text_id::kCloseThePaper)), QMessageBox::DestructiveRole);
  close->setObjectName("closePaper");
  QPushButton* keep = box.addButton(ToQString(strings.Text(text_id::kKeepThePaper)), QMessageBox::RejectRole);
  keep->setObjectName("keepPaper");
  box.setDefaultButton(keep);
  box.setEscapeButton(keep);
  box.exec();
  return box.clickedButton() == close;
}

}  // namespace quorvantis
