// SPDX-License-Identifier: MIT
#include "check/wording/LanguageWords.h"

namespace quorvantis {
namespace {

constexpr WordRow kArabic[] = {
    {WordUse::OfOthers, {u"كل ما سبق",           u"جميع ما سبق",
                         u"لا شيء مما سبق",      u"لا شئ مما سبق",
                         u"ليس أي مما سبق",      u"ليس أيا مما سبق",
                         u"ليس مما سبق",         u"جميع ما ذكر",
                         u"كل ما ذكر",           u"لا شيء مما ذكر",
                         u"غير ذلك مما سبق",     u"جميع الإجابات",
                         u"كل الإجابات",         u"جميع الخيارات",
                         u"كل الخيارات",         u"مما سبق",
                         u"مثل ما سبق",          u"كما سبق",
                         u"نفس ما سبق",          u"كما ورد أعلاه",
                         u"الإجابتان السابقتان", u"الاجابتان السابقتان",
                         u"الإجابتين السابقتين", u"الخياران السابقان",
                         u"الخيارين السابقين",   u"الإجابات السابقة",
                         u"الاجابات السابقة",    u"الخيارات السابقة",
                         u"كلا الإجابتين",       u"كلتا الإجابتين",
                         u"كلا الخيارين"}},
    {WordUse::AloneOfOthers,
     {u"كلاهما", u"كلتاهما", u"كليهما", u"كلتيهما", u"أول اثنين", u"أول إجابتين", u"أول خيارين",
      u"آخر خيارين", u"آخر إجابتين", u"الأول والثاني", u"الأولى والثانية", u"الخياران الأولان",
      u"الإجابتان الأوليان", u"لا هذا ولا ذاك", u"ليس أي منهما", u"لا أحد منهما", u"ولا واحد منهما",
      u"لا شيء منهما"}},
    {WordUse::BesideLabel,
     {u"فقط", u"الخيار", u"الخيارات", u"الخياران", u"الإجابة", u"الاجابة", u"الإجابات", u"الإجابتان", u"كل",
      u"من", u"العبارتان", u"كلا"}},
    {WordUse::Company, {u"صحيح", u"صحيحة", u"صحيحان", u"صحيحتان", u"خطأ", u"معا", u"معًا", u"معاً"}},
    {WordUse::OptionNoun,
     {u"الخيار", u"الخيارات", u"الخياران", u"الإجابة", u"الاجابة", u"الإجابات", u"الإجابتان"}},
    {WordUse::Link, {u"و", u"أو", u"ولا"}},
    {WordUse::QuestionNoun, {u"السؤال", u"سؤال", u"السؤالين", u"الأسئلة", u"التمرين"}},
    {WordUse::NumberSign, {u"رقم", u"الرقم"}},
    {WordUse::Reference, {u"انظر", u"في", u"من", u"إلى"}},
    {WordUse::NumberLink, {u"و", u"أو", u"إلى"}},
    {WordUse::UpTo, {u"إلى"}},
    {WordUse::One, {u"واحد", u"الأول"}},
    {WordUse::Two, {u"اثنان", u"الثاني"}},
    {WordUse::Three, {u"ثلاثة", u"الثالث"}},
    {WordUse::Four, {u"أربعة", u"الرابع"}},
    {WordUse::Five, {u"خمسة", u"الخامس"}},
    {WordUse::Six, {u"ستة", u"السادس"}},
    {WordUse::Seven, {u"سبعة", u"السابع"}},
    {WordUse::Eight, {u"ثمانية", u"الثامن"}},
    {WordUse::Nine, {u"تسعة", u"التاسع"}},
    {WordUse::Ten, {u"عشرة", u"العاشر"}},
    {WordUse::FollowsOn,
     {u"الصورة أعلاه", u"الشكل أعلاه", u"النص أعلاه", u"الجدول أعلاه", u"السؤال السابق", u"الصورة السابقة",
      u"الشكل السابق", u"النص السابق", u"الفقرة السابقة", u"الجدول السابق", u"القطعة السابقة",
      u"السؤالين السابقين", u"الأسئلة السابقة", u"إجابتك السابقة", u"الإجابة السابقة", u"الإجابتين السابقتين",
      u"كما سبق", u"مثل ما سبق"}},
    {WordUse::PictureNoun, {u"الصورة", u"الشكل", u"الرسم", u"الخريطة", u"المخطط", u"الصور", u"الأشكال"}},
    {WordUse::BeforePicture, {u"انظر", u"لاحظ", u"هذه", u"هذا", u"تأمل"}},
    {WordUse::AfterPicture,
     {u"التالي", u"التالية", u"المقابل", u"المقابلة", u"أدناه", u"المجاور", u"المجاورة", u"أعلاه", u"المرفقة",
      u"الآتي", u"الآتية"}},
    {WordUse::Negation, {u"ليس", u"ليست", u"عدا", u"ماعدا", u"لا", u"خاطئة", u"غير"}},
};

constexpr WordRow kPersian[] = {
    {WordUse::OfOthers, {u"همه موارد", u"هیچ کدام", u"هیچکدام", u"همه‌ی موارد"}},
    {WordUse::AloneOfOthers, {u"هر دو", u"هر دو مورد"}},
    {WordUse::QuestionNoun, {u"سوال"}},
    {WordUse::PictureNoun, {u"تصویر", u"شکل"}},
    {WordUse::Negation, {u"نہیں"}},
};

constexpr WordRow kHebrew[] = {
    {WordUse::OfOthers, {u"כל התשובות", u"אף תשובה", u"כל הנ\"ל"}},
    {WordUse::AloneOfOthers, {u"שניהם", u"שתיהן"}},
    {WordUse::Link, {u"או"}},
    {WordUse::QuestionNoun, {u"שאלה"}},
    {WordUse::PictureNoun, {u"תמונה"}},
};

}  // namespace

WordRows ArabicWords() {
  return kArabic;
}

WordRows PersianWords() {
  return kPersian;
}

WordRows HebrewWords() {
  return kHebrew;
}

}  // namespace quorvantis
