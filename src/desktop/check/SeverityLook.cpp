// SPDX-License-Identifier: MIT
#include "desktop/check/SeverityLook.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/CheckTexts.h"

#include <QStyle>

namespace quorvantis {

QIcon SeverityIcon(Severity severity, const QWidget& widget) {
  constexpr QStyle::StandardPixmap kSigns[] = {QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                               QStyle::SP_MessageBoxInformation};
  return widget.style()->standardIcon(kSigns[static_cast<std::size_t>(severity)], nullptr, &widget);
}

QString SeverityWord(Severity severity, const StringTable& strings) {
  constexpr int kWords[] = {text_id::kSeverityWrong, text_id::kSeverityDoubtful, text_id::kSeverityHint};
  return ToQString(strings.Text(kWords[static_cast<std::size_t>(severity)]));
}

}  // namespace quorvantis
