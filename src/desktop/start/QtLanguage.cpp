// SPDX-License-Identifier: MIT
#include "desktop/start/QtLanguage.h"

#include "shell/language/LanguageId.h"

#include <QApplication>
#include <QLibraryInfo>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace quorvantis {
namespace {

struct Translation {
  int languageId;
  const char* name;  ///< as in "qtbase_ar.qm"
};

// Qt translates into these. Variants of a language precede the language itself, which is the low 10 bits of
// an identifier.
constexpr int kLanguageBits = 0x3FF;
constexpr Translation kTranslations[] = {
    {0x0404, "zh_TW"}, {0x0C04, "zh_TW"}, {0x1404, "zh_TW"}, {0x04, "zh_CN"}, {0x01, "ar"}, {0x02, "bg"},
    {0x03, "ca"},      {0x05, "cs"},      {0x06, "da"},      {0x07, "de"},    {0x0A, "es"}, {0x0B, "fi"},
    {0x0C, "fr"},      {0x0D, "he"},      {0x0E, "hu"},      {0x10, "it"},    {0x11, "ja"}, {0x12, "ko"},
    {0x13, "nl"},      {0x14, "nn"},      {0x15, "pl"},      {0x16, "pt_BR"}, {0x19, "ru"}, {0x1A, "hr"},
    {0x1B, "sk"},      {0x1F, "tr"},      {0x22, "uk"},      {0x26, "lv"},    {0x29, "fa"},
};

/// The name of Qt's translation, or null.
const char* TranslationName(int languageId) {
  const auto fits = [&](const Translation& translation) {
    return translation.languageId == languageId || translation.languageId == (languageId & kLanguageBits);
  };
  const auto* found = std::ranges::find_if(kTranslations, fits);
  return found == std::end(kTranslations) ? nullptr : found->name;
}

}  // namespace

void QtTexts::LoadFor(int languageId) {
  marksKeys_ = !IsRightToLeft(languageId);
  const char* name = TranslationName(languageId);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  const QString file = name == nullptr ? QString() : folder + "/qtbase_" + name + ".qm";
  std::ignore = load(file);  // on failure it has no texts, as intended
}

QString QtTexts::translate(const char* context, const char* sourceText, const char* disambiguation,
                           int n) const {
  QString text = QTranslator::translate(context, sourceText, disambiguation, n);
  return marksKeys_ ? text : text.remove('&');
}

QtLanguage::~QtLanguage() {
  QCoreApplication::removeTranslator(&texts_);
}

void QtLanguage::Use(int languageId) {
  QApplication::setLayoutDirection(IsRightToLeft(languageId) ? Qt::RightToLeft : Qt::LeftToRight);
  QCoreApplication::removeTranslator(&texts_);
  texts_.LoadFor(languageId);
  QCoreApplication::installTranslator(&texts_);
}

}  // namespace quorvantis
