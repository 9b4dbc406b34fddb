// SPDX-License-Identifier: MIT
#include "check/wording/LanguageWords.h"

namespace quorvantis {
namespace {

constexpr WordRow kTurkish[] = {
    {WordUse::OfOthers,
     {u"hepsi", u"hiçbiri", u"yukarıdakilerin hepsi", u"yukarıdakilerin hiçbiri", u"yukarıdakilerden hiçbiri",
      u"yukarıdakiyle aynı", u"yukarıdakilerle aynı", u"yukarıdaki ile aynı", u"önceki iki cevap",
      u"önceki iki seçenek", u"önceki cevaplar", u"önceki seçenekler", u"ilk iki cevap", u"ilk iki seçenek"}},
    {WordUse::AloneOfOthers,
     {u"ikisi de", u"her ikisi", u"her ikisi de", u"hiçbiri", u"ilk ikisi", u"son ikisi", u"ilk iki"}},
    {WordUse::BesideLabel, {u"yalnız", u"yalnızca", u"sadece", u"hem", u"şıkkı", u"seçenek", u"seçeneği"}},
    {WordUse::Company, {u"doğru", u"doğrudur", u"yanlış", u"yanlıştır", u"de", u"da"}},
    {WordUse::OptionNoun, {u"seçenek"}},
    {WordUse::Link, {u"ve", u"veya", u"ya", u"ile", u"hem"}},
    {WordUse::QuestionNoun, {u"soru", u"sorular"}},
    {WordUse::NounAfterNumber, {u"soru", u"soruda", u"sorunun", u"soruya", u"sorudaki", u"sorudan"}},
    {WordUse::NumberSign, {u"numara", u"numaralı"}},
    {WordUse::NumberLink, {u"ve", u"ile"}},
    {WordUse::One, {u"birinci"}},
    {WordUse::Two, {u"ikinci"}},
    {WordUse::Three, {u"üçüncü"}},
    {WordUse::Four, {u"dördüncü"}},
    {WordUse::Five, {u"beşinci"}},
    {WordUse::Six, {u"altıncı"}},
    {WordUse::Seven, {u"yedinci"}},
    {WordUse::Eight, {u"sekizinci"}},
    {WordUse::Nine, {u"dokuzuncu"}},
    {WordUse::Ten, {u"onuncu"}},
    {WordUse::FollowsOn,
     {u"önceki soru", u"önceki soruda", u"önceki soruya", u"önceki sorudaki", u"önceki sorular",
      u"önceki cevap", u"önceki iki soru", u"yukarıdaki şekil", u"yukarıdaki şekilde", u"yukarıdaki resim",
      u"yukarıdaki resimde", u"yukarıdaki metin", u"yukarıdaki metne", u"yukarıdaki tablo",
      u"yukarıdaki soru", u"yukarıdaki ile aynı", u"yukarıdakiyle aynı"}},
    {WordUse::PictureNoun,
     {u"resim", u"resimde", u"şekil", u"şekilde", u"grafik", u"grafikte", u"haritada", u"fotoğraf"}},
    {WordUse::BeforePicture, {u"bu", u"yandaki", u"aşağıdaki", u"yukarıdaki"}},
    {WordUse::AfterPicture, {u"aşağıda"}},
    {WordUse::Negation, {u"değildir", u"değil", u"yanlıştır", u"yanlış"}},
};

constexpr WordRow kOthers[] = {
    {WordUse::OfOthers,
     {u"mindegyik",         u"egyik sem",           u"az összes fenti", u"a fentiek mindegyike",
      u"semua benar",       u"semua jawaban benar", u"semua salah",     u"tidak ada yang benar",
      u"tidak ada jawaban", u"semua di atas",       u"cả a, b, c",      u"tất cả các đáp án",
      u"tất cả đều đúng",   u"tất cả đáp án",       u"không có đáp án", u"cả hai đều đúng",
      u"tất cả các ý trên", u"उपर्युक्त सभी",          u"उपरोक्त सभी",      u"इनमें से कोई नहीं",
      u"उपर्युक्त में से कोई नहीं"}},
    {WordUse::AloneOfOthers,
     {u"mindkettő", u"az első kettő", u"keduanya", u"dua yang pertama", u"cả hai", u"दोनों"}},
    {WordUse::BesideLabel,
     {u"csak", u"hanya", u"opsi", u"pilihan", u"jawaban", u"chỉ", u"đáp án", u"kun", u"bare", u"endast"}},
    {WordUse::OptionNoun, {u"opsi", u"pilihan"}},
    {WordUse::Link,
     {u"és", u"vagy", u"og", u"och", u"eller", u"ja", u"dan", u"atau", u"và", u"hoặc", u"एवं", u"और", u"या"}},
    {WordUse::QuestionNoun, {u"soal", u"pertanyaan", u"câu", u"प्रश्न", u"spørgsmål", u"fråga", u"oppgave"}},
    {WordUse::NounAfterNumber, {u"kérdés", u"kérdésben", u"feladat", u"feladatban"}},
    {WordUse::NumberSign, {u"nomor", u"số"}},
    {WordUse::FollowsOn,
     {u"előző kérdés", u"előző feladat", u"fenti ábra", u"fenti ábrán", u"fenti szöveg", u"soal sebelumnya",
      u"gambar di atas", u"teks di atas", u"tabel di atas", u"câu trước", u"hình trên", u"đoạn văn trên",
      u"bảng trên"}},
    {WordUse::PictureNoun, {u"ábra", u"ábrán", u"kép", u"képen", u"gambar", u"peta", u"hình", u"चित्र"}},
    {WordUse::BeforePicture, {u"az", u"alábbi", u"lihat", u"perhatikan"}},
    {WordUse::AfterPicture, {u"berikut", u"bên", u"dưới"}},
    {WordUse::Negation,
     {u"nem", u"kivéve", u"bukan", u"tidak", u"kecuali", u"không", u"ngoại", u"नहीं", u"ikke", u"inte"}},
};

}  // namespace

WordRows TurkishWords() {
  return kTurkish;
}

WordRows OtherWords() {
  return kOthers;
}

}  // namespace quorvantis
