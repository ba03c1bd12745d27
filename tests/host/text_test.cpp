#include "sizewright/host/text.h"

#include <gtest/gtest.h>

#include <string>

namespace sizewright {
namespace {

TEST(Text, Words_are_the_same_without_regard_to_case_and_surrounding_blanks) {
  EXPECT_EQ(stricmpwos("  Gen Serv ", "GEN SERV"), 0);
  EXPECT_EQ(stricmpwos("", "   "), 0);
  EXPECT_NE(stricmpwos("GENSERV", "GEN SERV"), 0);
}

TEST(Text, Word_comparison_tells_the_order) {
  EXPECT_LT(stricmpwos("abc", "ABD"), 0);
  EXPECT_GT(stricmpwos("abd", "ABC"), 0);
  EXPECT_LT(stricmpwos("ab", "abc"), 0);
}

TEST(Text, A_fixed_text_cuts_what_does_not_fit_and_stays_terminated) {
  FixedText<6> text("abcdefgh");
  EXPECT_EQ(text.view(), "abcde");
  EXPECT_EQ(text.c_str()[5], '\0');
  text = "x";
  EXPECT_EQ(text.view(), "x");
}

TEST(Text, A_fixed_text_never_splits_a_character) {
  EXPECT_EQ(FixedText<4>("ab\u00e9").view(), "ab");  // the letter is two bytes long
  EXPECT_EQ(FixedText<5>("ab\u00e9").view(), "ab\u00e9");
}

TEST(Text, Trailing_blanks_go_and_inner_ones_stay) {
  char text[] = " a b \t ";
  text_remove_trailing_blanks(text);
  EXPECT_STREQ(text, " a b");
}

TEST(Text, Letters_become_capitals) {
  char text[] = "Us 14 gage-\xc3\xa9";
  text_to_upper(text);
  EXPECT_STREQ(text, "US 14 GAGE-\xc3\xa9");
}

TEST(Text, Padding_fills_up_to_the_length_and_leaves_longer_texts) {
  char text[8] = "ab";
  str_add_blanks_at_end(text, 5);
  EXPECT_STREQ(text, "ab   ");
  str_add_blanks_at_end(text, 3);
  EXPECT_STREQ(text, "ab   ");
}

TEST(Text, The_first_line_is_popped_until_nothing_is_left) {
  char text[] = "S1\n\nPROCESS";
  char line[kFlatTextEntry];
  EXPECT_EQ(list_pop_first(text, line), 1);
  EXPECT_STREQ(line, "S1");
  EXPECT_EQ(list_pop_first(text, line), 1);
  EXPECT_STREQ(line, "");
  EXPECT_EQ(list_pop_first(text, line), 1);
  EXPECT_STREQ(line, "PROCESS");
  EXPECT_EQ(list_pop_first(text, line), 0);
  EXPECT_STREQ(line, "");
}

TEST(Text, A_popped_line_is_cut_to_the_entry_length) {
  std::string text(5000, 'x');
  char line[kFlatTextEntry];
  EXPECT_EQ(list_pop_first(text.data(), line), 1);
  EXPECT_EQ(std::string(line), std::string(kFlatTextEntry - 1, 'x'));
  EXPECT_STREQ(text.c_str(), "");
}

struct NumberRow {
  const char* text;
  bool converts;
  double number;
};

class NumberText : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberText, Only_a_whole_finite_number_converts) {
  double number = -7.0;
  EXPECT_EQ(convert_to_double(GetParam().text, &number) == 0, GetParam().converts);
  EXPECT_EQ(number, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NumberText,
    testing::Values(NumberRow{"12.5", true, 12.5}, NumberRow{"  -3e2 ", true, -300.0},
                    NumberRow{"+4", true, 4.0}, NumberRow{".5", true, 0.5},
                    NumberRow{"1.", true, 1.0}, NumberRow{"", false, -7.0},
                    NumberRow{"12.5 PSI", false, -7.0}, NumberRow{"abc", false, -7.0},
                    NumberRow{"inf", false, -7.0}, NumberRow{"nan", false, -7.0},
                    NumberRow{"1e999", false, -7.0}));

TEST(Text, A_form_value_is_a_number_and_a_unit_on_the_next_line) {
  double number = 0.0;
  char units[64] = "x";
  EXPECT_EQ(readNumberAndUnits("120\nFEET", &number, units), 1);
  EXPECT_EQ(number, 120.0);
  EXPECT_STREQ(units, "FEET");
  EXPECT_EQ(readNumberAndUnits("1.25", &number, units), 1);
  EXPECT_STREQ(units, "");
}

TEST(Text, A_form_value_without_number_leaves_number_and_unit) {
  double number = 5.0;
  char units[64] = "PSI";
  EXPECT_EQ(readNumberAndUnits("NONE\nFEET", &number, units), 0);
  EXPECT_EQ(number, 5.0);
  EXPECT_STREQ(units, "PSI");
}

TEST(Text, A_whole_number_text_cuts_the_fraction_towards_zero) {
  EXPECT_EQ(wholeNumberText(12.9).view(), "12");
  EXPECT_EQ(wholeNumberText(-12.9).view(), "-12");
  EXPECT_EQ(wholeNumberText(1e300).view(), "9200000000000000000");
}

TEST(Text, Formatting_takes_any_length) {
  EXPECT_EQ(formatText("%6.2fPSI", 1234.567), "1234.57PSI");
  EXPECT_EQ(formatText("%.2f", 1e300).size(), 301U + 3U);
}

TEST(Text, Splitting_and_joining_are_inverse) {
  for (const std::string text : {"", "a", "a\nb", "\n", "a\n\n", "\n\na"}) {
    EXPECT_EQ(joinTexts(splitText(text, '\n'), '\n'), text);
  }
}

}  // namespace
}  // namespace sizewright
