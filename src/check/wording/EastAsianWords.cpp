// SPDX-License-Identifier: MIT
#include "check/wording/LanguageWords.h"

namespace quorvantis {
namespace {

constexpr WordRow kChinese[] = {
    {WordUse::OfOthers,
     {u"以上都",     u"以上全",       u"以上皆",     u"以上均",     u"以上选项",   u"以上答案", u"以上說法",
      u"以上说法",   u"上述都",       u"上述全",     u"上述皆",     u"上述均",     u"以上全部", u"都正确",
      u"都不对",     u"都不正确",     u"全部正确",   u"全都对",     u"均正确",     u"均不正确", u"都不是",
      u"皆是",       u"皆非",         u"以上兩者",   u"以上两者",   u"都對",       u"都不對",   u"都正確",
      u"同上",       u"与上相同",     u"與上相同",   u"与上面相同", u"和上面一样", u"前两项",   u"前兩項",
      u"前三项",     u"前两者",       u"前兩者",     u"后两项",     u"後兩項",     u"后两者",   u"前两个答案",
      u"前兩個答案", u"前面两个答案", u"前两个选项", u"前兩個選項", u"以上两项",   u"以上兩項", u"以上三项",
      u"以上各项",   u"以上二者",     u"上述各项",   u"两者都",     u"兩者都",     u"两者皆",   u"兩者皆",
      u"两者均",     u"二者都",       u"二者皆",     u"二者均"}},
    {WordUse::AloneOfOthers,
     {u"前两个", u"前兩個", u"前面两个", u"后两个", u"後兩個", u"两者", u"兩者", u"都是", u"都对", u"都不",
      u"都错", u"两个都对", u"两个都不对"}},
    {WordUse::FollowsOn,
     {u"上图",   u"上圖",   u"上题",     u"上題",       u"上一题",   u"上一題",   u"前一题",
      u"前一題", u"前题",   u"上文",     u"上述材料",   u"上述文章", u"上面的图", u"上面的短文",
      u"接上题", u"续上题", u"根据上述", u"上表",       u"以上材料", u"以上短文", u"同上",
      u"前两题", u"前兩題", u"前面两题", u"前两个答案", u"上面的题", u"上一问",   u"前一问"}},
    {WordUse::Picture,
     {u"如图", u"如圖", u"下图", u"下圖", u"图中", u"圖中", u"图示", u"圖示", u"右图",   u"右圖",  u"左图",
      u"左圖", u"看图", u"看圖", u"附图", u"附圖", u"此图", u"上图", u"上圖", u"图所示", u"示意图"}},
    {WordUse::Negation,
     {u"不属于", u"不屬於", u"不正确", u"不正確", u"不包括", u"不符合", u"不是", u"不能", u"不可", u"不会",
      u"不會", u"不", u"错误", u"錯誤", u"没有", u"沒有", u"除了"}},
    {WordUse::NounAtLetter, {u"选项", u"選項", u"答案"}},
    {WordUse::BeforeLetter,
     {u"只有", u"仅", u"僅", u"除", u"选项", u"選項", u"答案", u"仅有", u"只选", u"只選"}},
    {WordUse::AfterLetter,
     {u"项", u"項", u"选项", u"都", u"均", u"皆", u"对", u"正确", u"正確", u"錯", u"错", u"两项", u"兩項"}},
    {WordUse::LinkOfLetters, {u"和", u"与", u"與", u"及", u"或", u"、"}},
    {WordUse::NounAtNumber, {u"题目", u"題目", u"问题", u"問題", u"习题"}},
    {WordUse::NounBehindNumber,
     {u"题", u"題", u"小题", u"小題", u"大题", u"大題", u"道题", u"道題", u"问", u"問"}},
};

constexpr WordRow kJapanese[] = {
    {WordUse::OfOthers,
     {u"上記のすべて",   u"上記すべて",    u"すべて正しい",   u"いずれでもない",   u"どれでもない",
      u"該当なし",       u"上のすべて",    u"上記の両方",     u"両方とも",         u"どちらも",
      u"どちらでもない", u"上と同じ",      u"上記と同じ",     u"最初の二つの答え", u"最初の2つの答え",
      u"前の二つの答え", u"前の2つの答え", u"上の二つの答え", u"上の2つの答え",    u"以上のすべて",
      u"上記以外"}},
    {WordUse::AloneOfOthers,
     {u"両方", u"最初の二つ", u"最初の2つ", u"最初の２つ", u"前の二つ", u"前の2つ", u"前の２つ", u"上の二つ",
      u"上の2つ", u"最後の二つ", u"最後の2つ"}},
    {WordUse::FollowsOn, {u"上の図", u"前問", u"上の文", u"前の問題", u"上の問題", u"上の表", u"上と同じ"}},
    {WordUse::Picture, {u"次の図", u"右の図", u"図のよう", u"図に", u"下の図", u"図は"}},
    {WordUse::Negation, {u"誤っている", u"ではない"}},
    {WordUse::NounAtLetter, {u"選択肢"}},
    {WordUse::BeforeLetter, {u"選択肢"}},
    {WordUse::AfterLetter, {u"だけ", u"のみ", u"の両方"}},
    {WordUse::LinkOfLetters, {u"と", u"または", u"・"}},
    {WordUse::NounAtNumber, {u"問題", u"設問", u"問"}},
};

constexpr WordRow kKorean[] = {
    {WordUse::OfOthers,
     {u"위의 모두", u"모두 맞다", u"모두 옳다", u"위 모두", u"해당 없음", u"정답 없음", u"위와 같음",
      u"위와 동일", u"처음 두 답", u"앞의 두 답", u"앞의 두 보기", u"위의 두 보기", u"위 보기 모두",
      u"위의 모든", u"모두 정답", u"모두 아님", u"둘 다 아님"}},
    {WordUse::AloneOfOthers,
     {u"둘 다", u"둘다", u"처음 두 개", u"처음 두 가지", u"앞의 두 개", u"앞의 두 가지", u"위의 두 개",
      u"마지막 두 개", u"둘 중 하나도"}},
    {WordUse::Company, {u"맞다", u"옳다", u"맞음", u"옳음", u"정답", u"아님", u"틀림", u"아니다"}},
    {WordUse::BesideLabel, {u"보기", u"선택지", u"번만"}},
    {WordUse::QuestionNoun, {u"문제", u"문항"}},
    {WordUse::NounAfterNumber, {u"번"}},
    {WordUse::FollowsOn,
     {u"위 그림", u"위의 그림", u"위 글", u"위의 글", u"앞 문제", u"앞 문항", u"앞의 문제", u"이전 문제",
      u"위 문제", u"위의 문제", u"앞의 두 문제", u"위의 표", u"위 표"}},
    {WordUse::PictureNoun, {u"그림", u"그림은", u"그림에서", u"그림과", u"그래프는", u"사진은"}},
    {WordUse::BeforePicture, {u"다음", u"위"}},
    {WordUse::Negation, {u"아닌", u"않은", u"틀린"}},
    {WordUse::NounAtLetter, {u"보기"}},
    {WordUse::LinkOfLetters, {u"와", u"과", u"나", u"또는"}},
};

}  // namespace

WordRows ChineseWords() {
  return kChinese;
}

WordRows JapaneseWords() {
  return kJapanese;
}

WordRows KoreanWords() {
  return kKorean;
}

}  // namespace quorvantis
