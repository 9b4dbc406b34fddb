// SPDX-License-Identifier: MIT
// Files as other programs and people write them.
#include "ReadForeign.h"
#include "exchange/qti/ZipWriter.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

struct ForeignRow {
  const char* bytes;
  const char* questions;
  const char* notes = "";
};

void ExpectRead(ForeignReader& reader, const char* format, std::span<const ForeignRow> rows) {
  for (const ForeignRow& row : rows) {
    const ForeignFile read = reader.Read(row.bytes);
    EXPECT_EQ(read.format, format) << row.bytes;
    EXPECT_EQ(read.questions, row.questions) << row.bytes;
    EXPECT_EQ(read.notes, row.notes) << row.bytes;
  }
}

const ForeignRow kGift[] = {
    {"// comment\n::Q1:: Who's buried in Grant's tomb?{=Grant ~no one\n // inside\n "
     "~Napoleon\\=\\{\\}\\~\\#\\:}\n",
     "choice Who's buried in Grant's tomb? | +Grant | -no one | -Napoleon={}~#:\n"},
    {"$CATEGORY: $course$/top/Bio//logy\n\nTwo {~%50%a ~%50%b ~%-100%c}\n\nSun{T}\n\nMoon "
     "{FALSE#wrong#right}\n",
     "choice Two | +a | +b | -c\nchoice Sun | +True | -False\nchoice Moon | -True | +False\n",
     "question 3: feedback and hints are left out\n"},
    {"Mahatma was born in {=1869 =%50%1870 =%0%x#no} in India.\n\nWhen? {#1822:5}\n\nPi {#3.141..3.142}\n\n"
     "Two {#=10:0 =%50%11:1}\n",
     "fill Mahatma was born in ____ in India. | 1869, 1870\nfill When? | 1822\nfill Pi | 3.141..3.142\nfill "
     "Two | 10, 11\n",
     "question 1: feedback and hints are left out\nquestion 1: an answer that is partly right counts as "
     "right: 1870\n"
     "question 1: a wrong answer is left out: x\n"
     "question 2: the answer is a number; the range that would count as right is left out: 1822:5\n"
     "question 3: the answer is a number; the range that would count as right is left out: 3.141..3.142\n"
     "question 4: the answer is a number; the range that would count as right is left out: 11:1\n"
     "question 4: an answer that is partly right counts as right: 11:1\n"},
    {"Match {\n=cat -> miaow\n\n=dog -> woof\n= -> moo\n}\n\nWrite {####Yes, so.}\n\nOnly text\n\nBroken {=a "
     "~b\n\nNext {}",
     "fill Match\\n(miaow / moo / woof)\\ncat ____\\ndog ____ | miaow | woof\nessay Write | Yes, so.\nessay "
     "Next\n",
     "question 1: the pairs become a fill-in question with a blank for each\n"
     "question 3: a text without a question is left out: Only text\n"
     "question 4: a part could not be read and is left out: Broken {=a ~b\n"},
    {"\xEF\xBB\xBF[html]<p>a &lt; b<br>\nc <script>x</script><img src=\"http\\://x/y.png\"></p>{=[plain]<b> "
     "~c}",
     "choice a < b\\nc | +&lt;b> | -c\n",
     "question 1: what a browser would run (scripts, forms, embedded pages) is left out\n"
     "question 1: what is not in the file is not fetched and is left out: http://x/y.png\n"},
    {"$CATEGORY: one\n\nOpen {\n\n =a\n\n ~b\n\n}\n::R::Below {T}\n\n$CATEGORY: two\n\nLast {F}\n",
     "choice Open | +a | -b\nchoice Below | +True | -False\nchoice Last | -True | +False\n",
     "questions of several categories are read into one exam; the name of this one is left out: two\n"},
    {"Stars {=a*b =2\\\\*3 =4\\*5}", "fill Stars | a*b, 2*3, 4*5\n",
     "question 1: a star stands for any text in its answer “a*b”; in an exam it is just a star\n"},
    {"The {=dog} chases {=cat\n} and\n{~ox =hen}{#7}.\n\n$5 {T}\n",
     "fill The ____ chases ____ and ____ (ox / hen) ____. | dog | cat | hen | 7\nchoice $5 | +True | "
     "-False\n",
     "question 1: choices within the text become blanks, with the choices behind them\n"},
    {"One?{=a ~b}\nTwo is\nwhat? {T}\nThree goes\n{=on}\nand on {=so}.\n\nFour {=x}, five\nSix "
     "{=y}\n$CATEGORY: "
     "c\n{F}",
     "choice One? | +a | -b\nchoice Two is\\nwhat? | +True | -False\nfill Three goes ____ and on ____. | on "
     "| "
     "so\nfill Four ____, five\\nSix ____ | x | y\nchoice  | -True | +False\n",
     "question 2: no blank line stands in front of it; it was read as a question of its own\n"
     "question 3: no blank line stands in front of it; it was read as a question of its own\n"
     "questions of several categories are read into one exam; the name of this one is left out: c\n"},
    {"Half of {1}? {=$\\frac{1}{2}$ ~f() { a=b; }}\n\nA^{T} {=a { ~b}\n\nPairs {=a->b}\nbelow",
     "choice Half of {1}? | +$\\frac{1}{2}$ | -f() { a=b; }\nchoice A^{T} | +a { | -b\n"
     "fill Pairs\\nbelow\\n(b)\\na ____ | b\n",
     "question 1: braces that a backslash should protect are read as text: {1}? {=$\\frac{1}{2}$ ~f() { a=b; "
     "}}\n"
     "question 2: braces that a backslash should protect are read as text: {T} {=a { ~b}\n"
     "question 3: the pairs become a fill-in question with a blank for each\n"},
    {"// [tag:x]\n::Name::{~=a ~b}\n\nTen {~%10%a ~b}\n\nShares {~%75%a ~%25%b}\n\nBoth {=a =b}{=c ~%-50%d "
     "=e}",
     "choice Name | +a | -b\nchoice Ten | +a | -b\nchoice Shares | +a | +b\nfill Both ____ ____ (c / d / e) "
     "| a, "
     "b | c, e\n",
     "question 1: its tags are left out\n"
     "question 1: it has no text; its name stands there instead\n"
     "question 2: an option that is partly right counts as right, since none is fully right: a\n"
     "question 3: how wrong and partly right answers score is simplified\n"
     "question 4: how wrong and partly right answers score is simplified\n"
     "question 4: several options are fully right, each by itself; in an exam all of them have to be chosen\n"
     "question 4: choices within the text become blanks, with the choices behind them\n"},
    {"[markdown]**b *i*** 2*3 `<x>` \\*s\\* [l](http\\://x) ![p](y.png)\n1. one{=[plain]*a* ~`c`}",
     "choice <b>b <i>i</i></b> 2*3 <code>&lt;x></code> *s* l (http://x) \\n1. one | +*a* | -<code>c</code>\n",
     "question 1: lists, headings, tables and code blocks of Markdown stay as they are written\n"
     "question 1: its formatting is simplified\n"
     "question 1: what is not in the file is not fetched and is left out: y.png\n"},
    {"Gr\u00F6\u00DFe \xE9 {=x ~y}", "choice Gr\u00F6\u00DFe \uFFFD | +x | -y\n",
     "some bytes are no characters; \uFFFD stands in their place\n"},
    {"caf\xE9 {=x ~y}", "choice caf\xC3\xA9 | +x | -y\n",
     "the text is not UTF-8; it was read as Windows text of Western Europe\n"},
};

const ForeignRow kAiken[] = {
    {"What is it?\r\nA) one\r\nB) two\r\nANSWER: B\r\n\r\nLines\nof text\na. x\nmore\nb. y\nanswer: a",
     "choice What is it? | -one | +two\nchoice Lines\\nof text | +x\\nmore | -y\n"},
    {"Q\nA. a\nB. b\n\nR\nA. c\nB. d\n\nANSWER: A\n", "choice Q | -a | -b\nchoice R | +c | -d\n",
     "question 1: it has no right option\n"},
    {"Q\nA. a\nB. b\nANSWER: D\n\nrest", "choice Q | -a | -b\n",
     "question 1: “D” names no option, so none is right\nquestion 2: a part could not be read and is left "
     "out: rest\n"},
    {"Q\nA.a\nB.b\nD. d\nANSWER : (D)\nFeedback: no\n\nR\nA. x y B. z\nanswer: A and C\n\nS\nA. True\nB. "
     "False\nC. E\nANSWER: True\nANSWER: A\n",
     "choice Q | -a | -b | +d\nchoice R | +x y | -z\nchoice S | -True | -False | -E\n",
     "question 1: feedback and hints are left out\n"
     "question 2: of “A and C”, A is taken for right and the rest is left out\n"
     "question 3: “True” names no option, so none is right\n"
     "question 4: a part could not be read and is left out: ANSWER: A\n"},
};

const ForeignRow kTables[] = {
    {"Question;Option 1;Option 2;Correct\n\"a;\"\"b\"\"\nc\";'=x;y;2\n", "choice a;\"b\"\\nc | -=x | +y\n"},
    {"sep=;\nQuestion;A;B;right\nq;x;y;A\n", "choice q | +x | -y\n"},
    {"kind,question,A,B,right\nmcq,q,Bad,y,Bad\nodd,q,,,\n", "choice q | +Bad | -y\nessay q\n",
     "question 2: the kind \xE2\x80\x9Codd\xE2\x80\x9D is not known\n"},
    // A letter or a number is what it says, even if it is the text of another option, too.
    {"question,A,B,C,right\nq,B,A,C,A\nq,B,A,C,C\nq,2,3,1,3\nq,x,B,B,B\n",
     "choice q | +B | -A | -C\nchoice q | -B | -A | +C\nchoice q | -2 | -3 | +1\nchoice q | -x | +B | -B\n",
     "question 1: \xE2\x80\x9C"
     "A\xE2\x80\x9D can be the letter or number of one option and the text of "
     "another; A is taken for right\n"
     "question 3: \xE2\x80\x9C"
     "3\xE2\x80\x9D can be the letter or number of one option and the text of "
     "another; C is taken for right\n"},
    {"question,A,B,C,right\nq,11,12,13,12\nq,11,12,13,2\nq,x,Ab,y,Ab\n",
     "choice q | -11 | +12 | -13\nchoice q | -11 | +12 | -13\nchoice q | -x | +Ab | -y\n"},
    {"question,A,B,C,right\nq,bad,good,ok,Bad\nq,10,14,16,12\nq,10,14,16,\"1,2\"\nq,a &amp; b,x,y,a & b\n"
     "q,x,y,z,\"a), c)\"\nq,red,blue,green,\"Red, blue\"\nq,x,y,z,A|C\nq,x,y,z,\"A, D\"\nq,x,y,z,B,beyond\n",
     "choice q | +bad | -good | -ok\nchoice q | -10 | -14 | -16\nchoice q | -10 | -14 | -16\n"
     "choice q | +a & b | -x | -y\nchoice q | +x | -y | +z\nchoice q | +red | +blue | -green\n"
     "choice q | +x | -y | +z\nchoice q | +x | -y | -z\nchoice q | -x | +y | -z\n",
     "question 2: “12” names no option, so none is right\nquestion 3: “1,2” names no option, so none is "
     "right\n"
     "question 4: “a & b” can be the letter or number of one option and the text of another; A is taken for "
     "right\n"
     "question 8: of “A, D”, A is taken for right and the rest is left out\n"
     "question 9: the row has more cells than the first one has names; left out: beyond\n"},
    {"kind,question,right,A,score,Hint\nfillin,q,Paris,,2 "
     "points,see\nTF,q,True,,1/2,\nt/f,q,no,,+3,\n,q,Rome,,-1,\n"
     "essay,q,because,,,\n",
     "fill q | Paris\nchoice q | +True | -False\nchoice q | -True | +False\nfill q | Rome\nessay q | "
     "because\n",
     "the column “Hint” is left out\nquestion 2: “1/2” is not read as a score; it gets 1\n"
     "question 4: “-1” is not read as a score; it gets 1\n"},
    {"question, A, B, answer\n\"Q, x\", \"a, b\", c, A\n5\" or 6\"?,x,y,B\n\"open,x,y,B\nlast,x,y,A\n",
     "choice Q, x | +a, b | -c\nchoice 5\" or 6\"? | -x | +y\nchoice \"open | -x | +y\nchoice last | +x | "
     "-y\n",
     "a quotation mark is never closed and is read as a character\n"},
    // In a table of our own, letters are letters; what people change in it may be a text.
    {"kind,question,A,B,C,D,E,right,answers,model answer,score\nchoice,q,0,A,B,AB,,B,,,\n"
     "choice,q,0,A,B,AB,,AB,,,\nchoice,q,Bad,x,,,,Bad,,,\n",
     "choice q | -0 | +A | -B | -AB\nchoice q | +0 | +A | -B | -AB\nchoice q | +Bad | -x\n"},
};

const ForeignRow kTabTables[] = {
    {"text\tanswers\tpoints\nfill ___\ta | b\\|c\t1,5\n", "fill fill ___ | a, b|c\n"},
};

TEST(ForeignFiles, InText) {
  ForeignReader reader;
  ExpectRead(reader, "gift", kGift);
  ExpectRead(reader, "aiken", kAiken);
  ExpectRead(reader, "csv", kTables);
  ExpectRead(reader, "tsv", kTabTables);
}

/// Whatever braces and lines are amiss: a file of which nothing is told is read with all its words, and no
/// brace is left for pupils to see.
TEST(ForeignFiles, GiftOfAnyShapeLosesNothingInSilence) {
  static const char* const kPieces[] = {"%",         "%. ", "%\n", "\n\n", "{=%}",
                                        " {=% ~%} ", "{T}", "{%}", "{=%",  "}",
                                        " {",        "\n",  "{}",  "% ",   " {=%->% =%->%}"};
  ForeignReader reader;
  std::mt19937 random(1);
  int silent = 0;
  for (int file = 0; file < 600; ++file) {
    std::string text;
    std::vector<std::string> words;
    for (std::size_t i = 2 + random() % 6; i > 0; --i) {
      for (const char c : std::string_view(kPieces[random() % std::size(kPieces)])) {
        if (c != '%') {
          text.push_back(c);
        } else {
          words.push_back("w" + std::to_string(words.size()) + "w");
          text += words.back();
        }
      }
    }
    const auto source = ExchangeSource(WriteBytes(reader.folder / "any", text));
    const ForeignFile read = reader.ReadAs(*FormatNamed("gift"), source);
    if (!read.notes.empty()) continue;
    ++silent;
    EXPECT_EQ(read.questions.find_first_of("{}"), std::string::npos) << text;
    for (const std::string& word : words) EXPECT_NE(read.questions.find(word), std::string::npos) << text;
  }
  EXPECT_GT(silent, 40);
}

TEST(ForeignFiles, PastedTablesNeedNoNames) {
  ForeignReader reader;
  const auto read = [&](const char* bytes) {
    return reader.ReadAs(*FormatNamed("TAB"), ExchangeSource(WriteBytes(reader.folder / "pasted", bytes)));
  };
  EXPECT_EQ(read("Q\tx\ty\tB\nR\tx\ty\t1, 2\n").questions, "choice Q | -x | +y\nchoice R | +x | +y\n");
  EXPECT_EQ(read("Q\tx\n").questions, "fill Q | x\n");
  EXPECT_EQ(read("1\t\"Q\nR\"\tx\ty\tB\n2.\tS\tx\ty\tz\tC\n").questions,
            "choice Q\\nR | -x | +y\nchoice S | -x | -y | +z\n");
  EXPECT_FALSE(read("Q\tx\ty\tlast words\n").exam);
}

std::string Quiz(const std::string& questions) {
  return "<?xml version=\"1.0\"?>\n<!DOCTYPE quiz [<!ENTITY a \"b\">]><quiz>" + questions + "</quiz>";
}

TEST(ForeignFiles, MoodleXml) {
  const std::string text =
      "<questiontext format=\"html\"><text><![CDATA[<p>T <img src=\"@@PLUGINFILE@@/a%20b.png\"> "
      "x</p>]]></text>"
      "<file name=\"a b.png\" encoding=\"base64\">YWJj\nZA==</file><file name='../c' "
      "encoding='base64'>!</file></questiontext>";
  const std::string plain = "<questiontext format='html'><text>T</text></questiontext>";
  const std::string cloze =
      "<questiontext format='html'><text>A {1:MC:=x~y#no} {2:SA:%100%b~%50%c\\}} {:NM:=3:1} "
      "{x}</text></questiontext>";
  ForeignReader reader;
  const ForeignFile read =
      reader.Read(Quiz("<question type='category'><category><text>$course$/top</text></category></question>"
                       "<question type='category'><category><text>top/My</text></category></question>"
                       "<question type='multichoice'>" +
                       text +
                       "<defaultgrade>2.5</defaultgrade><single>true</single>"
                       "<answer fraction='100'><text>r</text><feedback><text>f</text></feedback></answer>"
                       "<answer fraction='50'><text>half</text></answer></question>"
                       "<question type='truefalse'>" +
                       plain +
                       "<answer fraction='100'><text>true</text></answer></question>"
                       "<question type='cloze'>" +
                       cloze +
                       "</question>"
                       "<question type='numerical'>" +
                       plain +
                       "<answer fraction='100'><text>5</text><tolerance>0.1</tolerance></answer></question>"
                       "<question type='matching'>" +
                       plain +
                       "<subquestion><text>l</text><answer><text>r</text></answer></subquestion></question>"
                       "<question type='gapselect'><questiontext><text>a "
                       "[[2]]</text></questiontext><selectoption><text>x</text></selectoption>"
                       "<selectoption><text>y</text></selectoption></question>"
                       "<question type='calculated'>" +
                       plain + "</question><question type='description'>" + plain + "</question>"));
  EXPECT_EQ(read.questions,
            "choice T  x | +r | -half @a b.png\n"
            "choice T | +True | -False\n"
            "fill A ____ (x / y) ____ ____ {x} | x | b, c} | 3\n"
            "fill T | 5\n"
            "fill T\\n(r)\\nl ____ | r\n"
            "fill a ____\\n(x / y) | y\n");
  EXPECT_EQ(
      read.notes,
      "the file declares entities of its own, which are not resolved\n"
      "question 1: the picture \xE2\x80\x9C"
      "a b.png\xE2\x80\x9D now stands below the text\n"
      "question 1: a part could not be read and is left out: ../c\n"
      "question 1: an option that is partly right counts as wrong: half\n"
      "question 1: feedback and hints are left out\n"
      "question 3: feedback and hints are left out\n"
      "question 3: choices within the text become blanks, with the choices behind them\n"
      "question 3: an answer that is partly right counts as right: c}\n"
      "question 3: its blanks do not all score the same; an exam has one score for the whole question\n"
      "question 3: the answer is a number; the range that would count as right is left out: 3:1\n"
      "question 4: the answer is a number; the range that would count as right is left out: 5 \xC2\xB1 0.1\n"
      "question 5: the pairs become a fill-in question with a blank for each\n"
      "question 6: choices within the text become blanks, with the choices behind them\n"
      "question 7: questions of the type \xE2\x80\x9C"
      "calculated\xE2\x80\x9D cannot be read; left out: T\n"
      "question 8: a text without a question is left out: T\n");
  ASSERT_TRUE(read.exam);
  EXPECT_EQ(read.exam->title, u"My");
  EXPECT_EQ(read.exam->questions[0].score, 2.5);
  EXPECT_EQ(BytesOf(read.exam->questions[0].files[0]), "abcd");
}

std::string MoodleQuestion(const std::string& type, const std::string& text, const std::string& rest = "") {
  return "<question type='" + type + "'><questiontext format='html'><text><![CDATA[" + text +
         "]]></text></questiontext>" + rest + "</question>";
}

std::string MoodleAnswer(const std::string& fraction, const std::string& text) {
  return "<answer fraction='" + fraction + "'><text><![CDATA[" + text + "]]></text></answer>";
}

struct MoodleRow {
  std::string question;
  const char* read;
  const char* notes = "";
};

void ExpectReadInQuiz(std::span<const MoodleRow> rows) {
  ForeignReader reader;
  for (const MoodleRow& row : rows) {
    const ForeignFile read = reader.Read("<quiz>" + row.question + "</quiz>");
    EXPECT_EQ(read.questions, row.read) << row.question;
    EXPECT_EQ(read.notes, row.notes) << row.question;
  }
}

TEST(ForeignFiles, MoodleTrueFalse) {
  const auto statement = [](const std::string& answers) { return MoodleQuestion("truefalse", "S", answers); };
  const char* const isTrue = "choice S | +True | -False\n";
  const char* const isFalse = "choice S | -True | +False\n";
  const char* const isUnclear = "choice S | -True | -False\n";
  const char* const told = "question 1: it has no right option\n";
  const MoodleRow rows[] = {
      {statement(MoodleAnswer("100", "<p>True</p>") + MoodleAnswer("0", "FALSE")), isTrue},
      {statement(MoodleAnswer("0", "Wahr") + MoodleAnswer("100", "Falsch")), isFalse},
      {statement(MoodleAnswer("100", "FALSE.") + MoodleAnswer("0", "true")), isFalse},
      {statement(MoodleAnswer("100", "ВЕРНО") + MoodleAnswer("0", "x")), isTrue},
      {statement(MoodleAnswer("0", "Kweli") + MoodleAnswer("100", "Uongo")), "choice S | -Kweli | +Uongo\n"},
      {statement(MoodleAnswer("0", "true")), isFalse},
      {statement(MoodleAnswer("100", "true") + MoodleAnswer("100", "false")), isUnclear, told},
      {statement(MoodleAnswer("0", "true") + MoodleAnswer("0", "false")), isUnclear, told},
      {statement(MoodleAnswer("100", "") + MoodleAnswer("0", "")), isUnclear, told},
  };
  ExpectReadInQuiz(rows);
}

TEST(ForeignFiles, MoodleCloze) {
  const auto cloze = [](const std::string& text) { return MoodleQuestion("cloze", text); };
  const std::string choices =
      "question 1: choices within the text become blanks, with the choices behind them\n";
  const std::string all =
      choices + "question 1: several options of a blank have to be chosen; its answer is all of them: 2, 3\n";
  const std::string best =
      "question 1: an option that is partly right counts as wrong: b\n"
      "question 1: no option is worth the whole score; the one that is worth most counts as right: c\n";
  const std::string bestOfChoices = choices + best;
  const MoodleRow rows[] = {
      {cloze("1 {1:SA:=a} 2 {1:SA:~b} 3 {1:SA:=c}"), "fill 1 ____ 2 ____ 3 ____ | a |  | c\n",
       "question 1: a blank has no right answer; its place stays empty\n"},
      {cloze("{1:sac:=A}"), "fill ____ | A\n",
       "question 1: capital and small letters differ in its answers; in an exam they do not\n"},
      {cloze("{1:SA:%50%b~=a}"), "fill ____ | a, b\n",
       "question 1: an answer that is partly right counts as right: b\n"},
      {cloze("{1:MRH:=2~%100%3~4~%-50%6}"), "fill ____ (2 / 3 / 4 / 6) | 2, 3\n", all.c_str()},
      {cloze("{1:MCV:a~%50%b~%90%c}"), "fill ____ (a / b / c) | c\n", bestOfChoices.c_str()},
      {cloze("{mlang en}Sun{mlang} {mlang de}Sonne{mlang}: {1:SA:=a}"), "fill Sun / Sonne: ____ | a\n",
       "question 1: it is there in several languages, which now stand side by side\n"},
  };
  ExpectReadInQuiz(rows);
  ForeignReader reader;
  const ForeignFile read = reader.Read("<quiz>" + cloze("{2:SA:=a} {2:SA:=b}") + "</quiz>");
  EXPECT_EQ(read.exam->questions[0].score, 4);
}

TEST(ForeignFiles, MoodleParts) {
  const std::string file = "<file name='f.png' encoding='base64'>YWJj</file>";
  const std::string picture = "<![CDATA[<p><img src='@@PLUGINFILE@@/f.png'></p>]]>";
  const auto choice = [](const std::string& rest) { return MoodleQuestion("multichoice", "Q", rest); };
  const MoodleRow rows[] = {
      {MoodleQuestion("matching", "M",
                      "<subquestion format='html'><text>" + picture + "</text>" + file +
                          "<answer><text>r</text></answer></subquestion><subquestion><text><![CDATA[<img "
                          "src='@@PLUGINFILE@@/gone.png'>]]></text><answer><text>s</text></answer>"
                          "</subquestion>"),
       "fill M\\n(r / s)\\nf.png ____\\n\xE2\x80\xA6 ____ | r | s @f.png\n",
       "question 1: the picture \xE2\x80\x9C"
       "f.png\xE2\x80\x9D now stands below the text\n"
       "question 1: what is not in the file is not fetched and is left out: @@PLUGINFILE@@/gone.png\n"
       "question 1: the pairs become a fill-in question with a blank for each\n"},
      {choice("<image>old/p.gif</image><image_base64>YWJj</image_base64>" + MoodleAnswer("100", "a")),
       "choice Q | +a @p.gif\n"},
      {choice("<image>old/p.gif</image>" + MoodleAnswer("100", "a")), "choice Q | +a\n",
       "question 1: what is not in the file is not fetched and is left out: old/p.gif\n"},
      {choice("<single>true</single>" + MoodleAnswer("50", "a") + MoodleAnswer("90", "b") +
              MoodleAnswer("-25", "c")),
       "choice Q | -a | +b | -c\n",
       "question 1: no option is worth the whole score; the one that is worth most counts as right: b\n"
       "question 1: an option that is partly right counts as wrong: a\n"
       "question 1: how wrong and partly right answers score is simplified\n"},
      {MoodleQuestion("essay", "E",
                      "<responsetemplate format='html'><text>&lt;p>Dear&lt;/p></text>"
                      "</responsetemplate>"),
       "essay E\n", "question 1: the text that the answer begins with is left out: Dear\n"},
      {MoodleQuestion("numerical", "N",
                      MoodleAnswer("100", "9") + "<units><unit><unit_name>m</unit_name></unit></units>"),
       "fill N | 9\n", "question 1: the units of its answer are left out: m\n"},
      {MoodleQuestion("ddwtos", "[[1]], [[7]]", "<dragbox><text>H&lt;sub>2&lt;/sub></text></dragbox>"),
       "fill ____, ____\\n(H<sub>2</sub>) | H<sub>2</sub> | \n",
       "question 1: a blank has no right answer; its place stays empty\n"
       "question 1: choices within the text become blanks, with the choices behind them\n"},
      {MoodleQuestion("essay",
                      "<span class='multilang' lang='en'>a <span>b</span></span>\n<span "
                      "class=\"x multilang\" lang='de'>c</span> d"),
       "essay a b / c d\n", "question 1: it is there in several languages, which now stand side by side\n"},
      {"<question type='essay'><questiontext format='markdown'><text>2 * 3 ____ **b**</text></questiontext>"
       "</question>",
       "essay 2 * 3 ____ <b>b</b>\n"},
      {"<question type='essay'><questiontext format='markdown'><text>2 * 3 - 4, # ____</text></questiontext>"
       "</question>",
       "essay 2 * 3 - 4, # ____\n"},
  };
  ExpectReadInQuiz(rows);
}

// Would not end in time that grows faster than the file.
TEST(ForeignFiles, MoodleTakesTimeInProportionToTheFile) {
  constexpr int kCopies = 100'000;
  ForeignReader reader;
  for (const char* piece : {"{1:SA:=a ", "\">{1:SA:=a}", "<img src='@@PLUGINFILE@@/x.png'>", "[[1",
                            "{mlang x", "<span class=multilang>", "{mlang a}b{mlang}"}) {
    std::string text;
    for (int i = 0; i < kCopies; ++i) text += piece;
    for (const char* type : {"cloze", "ddwtos"})
      EXPECT_TRUE(reader.Read("<quiz>" + MoodleQuestion(type, text) + "</quiz>").exam) << piece;
  }
  std::string files;
  std::string text;
  for (int i = 0; i < kCopies / 4; ++i) {
    const std::string name = std::to_string(i) + ".png";
    files += "<file name='" + name + "'>YWJj</file>";
    text += "&lt;img src='@@PLUGINFILE@@/" + name + "'&gt;&lt;img src='@@PLUGINFILE@@/x" + name + "'&gt;";
  }
  const ForeignFile read = reader.Read("<quiz><question type='essay'><questiontext><text>" + text +
                                       "</text>" + files + "</questiontext></question></quiz>");
  EXPECT_EQ(read.exam->questions[0].files.size(), 100);
}

TEST(ForeignFiles, MoodleXmlInOtherEncodings) {
  const std::u16string quiz =
      u"<?xml version=\"1.0\"?><quiz><question type='essay'><questiontext "
      u"format='html'><text>\u201C\u00E9</text>"
      u"</questiontext></question></quiz>";
  std::string utf16 = "\xFF\xFE";
  std::string windows;
  for (const char16_t unit : quiz) {
    utf16.append({static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)});
    windows.push_back(static_cast<char>(unit == u'\u201C' ? 0x93 : unit));
  }
  ForeignReader reader;
  EXPECT_EQ(reader.Read(utf16).questions, "essay \xE2\x80\x9C\xC3\xA9\n");
  EXPECT_EQ(reader.Read(windows).questions, "essay \xE2\x80\x9C\xC3\xA9\n");
}

std::string Package(std::initializer_list<std::pair<const char*, std::string>> parts) {
  ZipWriter zip;
  for (const auto& [name, bytes] : parts) zip.Add(name, bytes);
  return zip.Finish();
}

TEST(ForeignFiles, Qti2) {
  ForeignReader reader;
  const std::string item =
      "<assessmentItem><responseDeclaration identifier='R' baseType='identifier'><correctResponse><value> b "
      "</value>"
      "</correctResponse></responseDeclaration><itemBody><p>Look <strong>here</strong> <em>now</em></p>"
      "<choiceInteraction responseIdentifier='R'><prompt>Which? <img src='../m/p.png'/><img "
      "src='../../../etc/passwd'/></prompt>"
      "<simpleChoice identifier='a'>A<feedbackInline>no</feedbackInline></simpleChoice>"
      "<simpleChoice identifier='b'>B</simpleChoice></choiceInteraction></itemBody></assessmentItem>";
  const std::string manifest =
      "<manifest><resources><resource type='imsqti_item_xmlv2p2' href='i/1.xml'/><resource "
      "type='imsqti_item_xmlv2p1' "
      "href='i/2.xml'/><resource type='imsqti_item_xmlv2p1' href='i/3.xml'/></resources></manifest>";
  const ForeignFile read = reader.Read(Package(
      {{"x/imsmanifest.xml", manifest},
       {"x/i/1.xml", item},
       {"x/m/p.png", "png"},
       {"x/i/3.xml", "<assessmentItem><itemBody><sliderInteraction/><p>S</p></itemBody></assessmentItem>"}}));
  EXPECT_EQ(read.questions, "choice Look <strong>here</strong> <em>now</em>\\nWhich? | -A | +B @p.png\n");
  EXPECT_EQ(read.notes,
            "question 1: feedback and hints are left out\n"
            "question 1: what is not in the file is not fetched and is left out: ../../../etc/passwd\n"
            "question 2: the package lacks a part: x/i/2.xml\n"
            "question 3: questions of the type \xE2\x80\x9CsliderInteraction\xE2\x80\x9D cannot be read; "
            "left out: S\n");
  EXPECT_EQ(reader.Read(item).format, "qti");
  EXPECT_EQ(reader.Read("<qti-assessment-item><qti-item-body/></qti-assessment-item>").notes,
            "this is QTI 3, which is not read; export it as QTI 2.1\n");
}

TEST(ForeignFiles, Qti2WithSounds) {
  ForeignReader reader;
  const ForeignFile read = reader.Read(Package(
      {{"imsmanifest.xml",
        "<manifest><resources><resource type='imsqti_apipitem_xmlv2p1' "
        "href='i.xml'/></resources></manifest>"},
       {"i.xml",
        "<q:assessmentItem xmlns:q='x'><q:itemBody><q:p>Hear<q:object data='s.mp3' type='audio/mpeg'/></q:p>"
        "<q:extendedTextInteraction/></q:itemBody></q:assessmentItem>"},
       {"s.mp3", "ID3"}}));
  EXPECT_EQ(read.questions, "essay Hear @s.mp3\n");
  EXPECT_EQ(read.notes, "question 1: its formatting is simplified\n");  // names with a prefix are no HTML
}

TEST(ForeignFiles, Qti2WithPairsOfPictures) {
  ForeignReader reader;
  const ForeignFile read = reader.Read(Package(
      {{"imsmanifest.xml",
        "<manifest><resources><resource type='imsqti_item_xmlv2p1' href='i.xml'/></resources></manifest>"},
       {"i.xml",
        "<assessmentItem><responseDeclaration identifier='R'><correctResponse><value>a "
        "b</value></correctResponse></responseDeclaration><itemBody><matchInteraction "
        "responseIdentifier='R'><prompt>M</prompt><simpleMatchSet><simpleAssociableChoice "
        "identifier='a'><img src='f.png'/></simpleAssociableChoice></simpleMatchSet><simpleMatchSet>"
        "<simpleAssociableChoice identifier='b'>flag</simpleAssociableChoice></simpleMatchSet>"
        "</matchInteraction></itemBody></assessmentItem>"},
       {"f.png", "x"}}));
  EXPECT_EQ(read.questions, "fill M\\n(flag)\\nf.png ____ | flag @f.png\n");
}

TEST(ForeignFiles, Qti1) {
  ForeignReader reader;
  const ForeignFile read = reader.Read(
      "<questestinterop><assessment title='T'><section>"
      "<item><presentation><material><mattext>Q</mattext></material><response_lid ident='r' "
      "rcardinality='Single'><render_choice>"
      "<response_label ident='1'><material><mattext>x</mattext></material></response_label>"
      "<response_label ident='2'><material><mattext "
      "texttype='text/html'>&lt;b&gt;y&lt;/b&gt;</mattext></material></response_label>"
      "</render_choice></response_lid></presentation><resprocessing><respcondition><conditionvar><varequal "
      "respident='r'>2</varequal>"
      "</conditionvar><setvar>100</setvar></respcondition></resprocessing></item>"
      "<item><itemmetadata><qtimetadata><qtimetadatafield><fieldlabel>question_type</"
      "fieldlabel><fieldentry>numerical_question"
      "</fieldentry></qtimetadatafield></qtimetadata></itemmetadata><presentation><material><mattext>N</"
      "mattext></material>"
      "</presentation><resprocessing><respcondition><conditionvar><vargte>1</vargte><varlte>2</varlte></"
      "conditionvar></respcondition>"
      "</resprocessing></item></section></assessment></questestinterop>");
  EXPECT_EQ(read.format, "canvas");
  EXPECT_EQ(read.questions, "choice Q | -x | +<b>y</b>\nfill N | 1..2\n");
  EXPECT_EQ(read.notes,
            "question 2: every number in a range counts as right; the answer is the range: 1..2\n");
}

TEST(ForeignFiles, AreBoundedInSum) {
  std::string resources;
  for (int i = 0; i < 20; ++i) resources += "<resource type='imsqti_xmlv1p2' href='i.xml'/>";
  const std::string item =
      "<questestinterop><assessment><item><presentation><material><mattext>Q</mattext></material>"
      "<response_str ident='r'><render_fib/></response_str></presentation></item></assessment>"
      "</questestinterop>" +
      std::string(std::size_t{15} << 20, ' ');
  std::string package =
      Package({{"imsmanifest.xml", "<manifest><resources>" + resources + "</resources></manifest>"},
               {"i.xml", item}});
  ForeignReader reader;
  EXPECT_EQ(reader.Read(package).exam->questions.size(), 17);  // of 15 MiB each, of 256
  EXPECT_NE(reader.Read(package).notes.find("too large to be read"), std::string::npos);

  // A size that is claimed in the directory at the end, and wrong, changes nothing.
  const std::size_t entry = package.rfind("PK\x01\x02");
  package.replace(entry + 24, 4, std::string("\x0A\0\0\0", 4));
  EXPECT_LE(reader.Read(package).exam->questions.size(), 17);
}

TEST(ForeignFiles, AreBounded) {
  ForeignReader reader;
  std::string nested = "<quiz><question>";
  for (int i = 0; i < 100'000; ++i) nested += "<a>";
  EXPECT_EQ(reader.Read(nested).notes, "the file is damaged, or not what it seems to be\n");
  nested = "<quiz><question/>";
  for (int i = 0; i < 300; ++i) nested += "<a>";
  for (int i = 0; i < 300; ++i) nested += "</a>";
  EXPECT_EQ(reader.Read(nested + "</quiz>").notes,
            "the elements of the file lie in each other more than 200 deep, which is not read\n");

  const std::string bomb(std::size_t{60} << 20, 'x');
  const std::string manifest =
      "<manifest><resources><resource type='imsqti_item_xmlv2p1' href='bomb'/></resources></manifest>";
  const ForeignFile read = reader.Read(Package({{"imsmanifest.xml", manifest}, {"bomb", bomb}}));
  EXPECT_NE(read.notes.find("is too large"), std::string::npos) << read.notes;
  EXPECT_EQ(read.questions, "");

  std::string damaged = Package({{"imsmanifest.xml", manifest}, {"bomb", "x"}});
  for (std::size_t i = 4; i < damaged.size(); i += 3) {
    std::string other = damaged;
    other[i] = static_cast<char>(other[i] ^ 0x55);
    reader.Read(other);
    reader.Read(other.substr(0, i));
  }
  EXPECT_EQ(CountEntries(reader.folder / "kept"), 0);
  EXPECT_EQ(reader.Read("just words").format, "");
  EXPECT_EQ(reader.Read("").format, "");
}

}  // namespace
}  // namespace quorvantis::test
