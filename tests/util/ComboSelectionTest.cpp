// Entries selected by text and by number.
#include "util/ComboSelection.h"

#include <gtest/gtest.h>

namespace quorvel::util {
namespace {

TEST(ComboSelection, SelectsTheFirstThatIsEqualOrNothingNew) {
  widgets::ComboBox combo("cboState");
  combo.SetItems({{"All", 0}, {"OK", 1}, {"NOT OK", 2}, {"OK", 2}, {"", -1}});
  EXPECT_TRUE(SelectStringIn(combo, "OK"));
  EXPECT_EQ(combo.selected(), 1U);
  EXPECT_TRUE(SelectDataIn(combo, 2));
  EXPECT_EQ(combo.selected(), 2U);
  EXPECT_FALSE(SelectStringIn(combo, "Ok"));
  EXPECT_FALSE(SelectStringIn(combo, "NOT"));
  EXPECT_FALSE(SelectDataIn(combo, 3));
  EXPECT_EQ(combo.selected(), 2U) << "stays where nothing is found";
  EXPECT_TRUE(SelectStringIn(combo, ""));
  EXPECT_EQ(combo.selected(), 4U);
  combo.SetItems({});
  EXPECT_FALSE(SelectStringIn(combo, ""));
  EXPECT_FALSE(combo.selected().has_value());
}

}  // namespace
}  // namespace quorvel::util
