// SPDX-License-Identifier: MIT
#include "desktop/main/menu/GuideDlg.h"

#include "desktop/controls/Controls.h"
#include "platform/posix/ApplicationFolder.h"
#include "shell/language/LanguageId.h"
#include "shell/settings/CodePageChoice.h"

#include <QTextBrowser>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr QSize kPageSize(600, 620);  // pixels

}  // namespace

std::filesystem::path FindGuide(int languageId) {
  const auto guide = [](int id) { return ExecutableFolder() / "guide" / (FormatLanguageId(id) + ".html"); };
  std::error_code ignored;
  const bool hasOwn = std::filesystem::is_regular_file(guide(languageId), ignored);
  return guide(hasOwn ? languageId : kEnglish);
}

GuideDlg::GuideDlg(const QString& caption, const QString& html, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setObjectName("guide");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(caption);
  auto* const page = new QTextBrowser(this);
  NameControl(page, "guidePage", caption);
  page->setOpenLinks(false);
  connect(page, &QTextBrowser::anchorClicked, page,
          [page](const QUrl& link) { page->scrollToAnchor(link.fragment()); });
  page->setHtml(html);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(page);
  resize(kPageSize);
}

}  // namespace quorvantis
