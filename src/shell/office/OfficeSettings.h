// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"

#include <string_view>

namespace quorvantis {

/// Settings of the browser and of the office suite, so that they show office documents in place and without
/// asking. If these programs are not installed, and so have no keys, nothing is set.
class OfficeSettings {
 public:
  /// `services` must outlive this.
  explicit OfficeSettings(const ExamServices& services) : services_(services) {}

  /// Has the browser open documents of the word processor, the presentation program and the spreadsheet in
  /// its own window.
  void RegisterBrowsableTypes();

  /// Allows action 2103 (status bar updates by script, which end a preview) for pages of the Internet zone.
  void AllowZoneAction();

  /// Makes `application` ("PowerPoint" or "Excel") open documents in the application folder without a
  /// warning, or stops that.
  void SetTrustedLocation(std::u16string_view application, bool enable);

 private:
  const ExamServices& services_;
};

}  // namespace quorvantis
