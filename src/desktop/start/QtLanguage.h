// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace quorvantis {

/// A translation of Qt's. Keys of Arabic or Hebrew letters are not marked: the mark takes joined letters
/// apart, and few keyboards have them under Alt.
class QtTexts : public QTranslator {
 public:
  /// Nothing is translated without a file of that language.
  void LoadFor(int languageId);

  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;

 private:
  bool marksKeys_ = true;
};

/// What Qt itself shows, in the language in use: the direction of all windows and the texts of Qt's own
/// dialogs. Without Qt's translation of a language those stay English.
class QtLanguage {
 public:
  QtLanguage() = default;
  ~QtLanguage();
  QtLanguage(const QtLanguage&) = delete;
  QtLanguage& operator=(const QtLanguage&) = delete;

  /// From now on that language.
  void Use(int languageId);

 private:
  QtTexts texts_;
};

}  // namespace quorvantis
