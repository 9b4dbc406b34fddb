// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvantis {

/// One of Qt's translations. Arabic and Hebrew letters are not marked as mnemonics: the mark breaks joined
/// letters, and few keyboards have them under Alt.
class QtTexts : public QTranslator {
 public:
  /// Translates nothing without a file of that language.
  void LoadFor(int languageId);

  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;

 private:
  bool marksKeys_ = true;
};

/// Sets Qt to the language in use: the direction of all windows and the texts of Qt's own dialogs. If Qt has
/// no translation for it, those stay English.
class QtLanguage {
 public:
  QtLanguage() = default;
  ~QtLanguage();
  QtLanguage(const QtLanguage&) = delete;
  QtLanguage& operator=(const QtLanguage&) = delete;

  /// Switches to that language.
  void Use(int languageId);

 private:
  QtTexts texts_;
};

}  // namespace quorvantis
