// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankExamNames.h"
#include "platform/StringTable.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvantis::test {
namespace {

/// The only text that names need.
class ApartStrings : public StringTable {
 public:
  std::u16string Text(int) const override { return u"%1 [%2]"; }
};

TEST(BankExamNames, TellApartWhatWouldLookAlike) {
  const struct {
    const char* what;
    std::vector<std::pair<const char*, const char16_t*>> exams;  ///< file and title
    QStringList names;
  } rows[] = {
      {"different", {{"/x/a.exm", u"Cells"}, {"/x/b.exm", u""}}, {"Cells", "b"}},
      {"one exam twice", {{"/x/a.exm", u"Cells"}, {"/x/a.exm", u"Cells"}}, {"Cells", "Cells"}},
      {"files", {{"/x/a.exm", u"b"}, {"/x/b.exm", u""}, {"/c.exm", u"c"}}, {"b [a.exm]", "b [b.exm]", "c"}},
      {"folders", {{"/x/a.exm", u"A"}, {"/y/a.exm", u" A "}}, {"A [x/a.exm]", "A [y/a.exm]"}},
      {"depth",
       {{"/a.exm", u""}, {"/x/s/a.exm", u""}, {"/y/s/a.exm", u""}},
       {"a [/a.exm]", "a [x/s/a.exm]", "a [y/s/a.exm]"}},
      {"what is cut off",
       {{"/x/1.exm", u"Biology 1"}, {"/x/2.exm", u"Biology 2"}},
       {"Biolo\u2026 [1.exm]", "Biolo\u2026 [2.exm]"}},
  };
  for (const auto& row : rows) {
    std::vector<BankExam> exams;
    exams.reserve(row.exams.size());
    for (const auto& [file, title] : row.exams) {
      exams.emplace_back();
      exams.back().path = file;
      exams.back().title = title;
    }
    std::vector<const BankExam*> shown;
    shown.reserve(exams.size());
    for (const BankExam& exam : exams) shown.push_back(&exam);
    const BankExamNames names(shown, ApartStrings(), 6);
    for (std::size_t i = 0; i < exams.size(); ++i) {
      QString name = names.Of(exams[i]);
      name.remove(QChar(0x2068)).remove(QChar(0x2069));
      EXPECT_EQ(name, row.names[static_cast<qsizetype>(i)]) << row.what;
    }
  }
}

}  // namespace
}  // namespace quorvantis::test
