// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FileFilters.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

TEST(FileFilters, AreReadInPairs) {
  const auto filters = ParseFilters(u"Pictures(*.jpg)|*.jpg;*.gif|Exam files, (*.exm)|*.exm|");
  ASSERT_EQ(filters.size(), 2U);
  EXPECT_EQ(filters[0].ForQt(), "Pictures(*.jpg) (*.jpg *.gif)");
  EXPECT_EQ(filters[1].ForQt(), "Exam files, (*.exm) (*.exm)");
  EXPECT_EQ(filters[1].FirstExtension(), "exm");
  EXPECT_TRUE(ParseFilters(u"").empty());
}

TEST(FileFilters, AnExtensionIsAddedUnlessTheNameHasOneOfThem) {
  const auto filters = ParseFilters(u"Exam files (*.exm)|*.exm|Word files (*.doc)|*.doc|");
  const auto named = [&filters](const char* name) { return WithExtension(name, filters, "exm"); };
  EXPECT_EQ(named("/home/a.b/MyExam"), "/home/a.b/MyExam.exm");
  EXPECT_EQ(named("/home/MyExam.exm"), "/home/MyExam.exm");
  EXPECT_EQ(named("/home/MyExam.DOC"), "/home/MyExam.DOC");
  EXPECT_EQ(named("/home/Term 1.2"), "/home/Term 1.2.exm");
  EXPECT_EQ(named("/home/MyExam."), "/home/MyExam.exm");
}

}  // namespace
}  // namespace quorvantis
