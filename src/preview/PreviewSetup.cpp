// SPDX-License-Identifier: MIT
#include "preview/PreviewSetup.h"

#include "platform/posix/ApplicationFolder.h"
#include "platform/texts/FileTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

/// With "%1" and "%2" as its places, however old the text is.
QString NoticeText(const StringTable& strings, int id) {
  return QString::fromStdU16String(FillMessage(strings.Text(id), {u"%1", u"%2"}));
}

}  // namespace

GatewaySetup SetUpGateway(const std::filesystem::path& applicationFolder, const StringTable& strings,
                          const ComposedPages& pages) {
  const PreviewTexts texts{
      NoticeText(strings, text_id::kPreparing),      NoticeText(strings, text_id::kCannotShow),
      NoticeText(strings, text_id::kFileMissing),    NoticeText(strings, text_id::kNeedsProgram),
      NoticeText(strings, text_id::kFirstPagesOnly), NoticeText(strings, text_id::kBeginningOnly)};
  return {applicationFolder, pages, ExecutableFolder() / "flash-player", ConverterPrograms::Find(), texts};
}

}  // namespace quorvantis
