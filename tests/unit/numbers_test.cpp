#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "cases.h"
#include "platform/runtime_error.h"

using namespace quillane;
using namespace quillane::test;

namespace {

struct Numeric {
  const char* text;
  double value;
};

TEST(Numbers, HaveTheirValue) {
  const Numeric cases[] = {{"12", 12},        {" 12.50 ", 12.5},   {".5", .5},
                           {"5.", 5},         {"-3", -3},          {"+3", 3},
                           {"3-", -3},        {"- 3", -3},         {"1,234.56", 1234.56},
                           {"1,2,3", 123},    {"1,", 1},           {"1,234,567", 1234567},
                           {"$19.99", 19.99}, {"-$5", -5},         {"$-5", -5},
                           {"(7.5)", -7.5},   {"($1,000)", -1000}, {"1e3", 1000},
                           {"1.5E-2", .015},  {"2d2", 200},        {"\t7\r\n", 7},
                           {"007", 7},        {"-0", 0},           {"1e-400", 0}};
  for (const Numeric& c : cases) {
    const QString text = QString::fromUtf8(c.text);
    EXPECT_TRUE(IsNumeric(text)) << c.text;
    EXPECT_DOUBLE_EQ(ToDouble(text), c.value) << c.text;
    EXPECT_FLOAT_EQ(ToSingle(text), static_cast<float>(c.value)) << c.text;
  }
}

TEST(Numbers, OtherTextIsNoNumber) {
  for (const char* text : {"",   " ",    ".",   "-",   "+",     "$",     "()",   "(",        "5)",
                           "(5", "(-5)", "-5-", "--5", "1.2.3", "1.2,3", ",5",   "1e",       "1e+",
                           "e5", "12a",  "a12", "1 2", "5%",    "$$5",   "0x10", "\xC2\xBD", "1e400"}) {
    EXPECT_FALSE(IsNumeric(QString::fromUtf8(text))) << text;
  }
}

template <class Body>
int ErrorOf(Body body) {
  try {
    body();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Numbers, ConversionsSayWhatIsWrong) {
  EXPECT_EQ(ErrorOf([] { ToSingle(u"twelve"); }), errors::TypeMismatch);
  EXPECT_EQ(ErrorOf([] { ToSingle(u""); }), errors::TypeMismatch);
  EXPECT_EQ(ErrorOf([] { ToSingle(u"1e39"); }), errors::Overflow);
  EXPECT_EQ(ErrorOf([] { ToDouble(u"-1e400"); }), errors::Overflow);
  EXPECT_EQ(ErrorOf([] { Val(u"1e400"); }), errors::Overflow);
  EXPECT_EQ(ErrorOf([] { SingleText(std::numeric_limits<float>::infinity()); }), errors::Overflow);
  EXPECT_EQ(ToSingle(u"1e-60"), 0.0f);
}

TEST(Numbers, ValTakesTheLongestBeginning) {
  const Numeric cases[] = {{"7.50 ", 7.5}, {"  12 pieces", 12}, {"1,234", 1}, {"-4x", -4}, {"+.5", .5},
                           {"", 0},        {"abc", 0},          {"$5", 0},    {"3e", 3},   {"3e2!", 300},
                           {"1 2", 12},    {"1.2.3", 1.2},      {"-", 0},     {".", 0}};
  for (const Numeric& c : cases) EXPECT_DOUBLE_EQ(Val(QString::fromLatin1(c.text)), c.value) << c.text;
}

TEST(Numbers, AreWrittenInTheirShortestForm) {
  const Cases<float, const char*, const char*> cases = {{0, "0", " 0"},
                                                        {7.5f, "7.5", " 7.5"},
                                                        {0.5f, "0.5", " .5"},
                                                        {-0.25f, "-0.25", "-.25"},
                                                        {-1250, "-1250", "-1250"},
                                                        {1234.5f, "1234.5", " 1234.5"},
                                                        {0.1f, "0.1", " .1"},
                                                        {19.99f, "19.99", " 19.99"},
                                                        {16777216, "16777216", " 16777216"},
                                                        {123456789.0f, "123456790", " 123456790"},
                                                        {-0.0f, "0", " 0"},
                                                        {0.000125f, "0.000125", " .000125"},
                                                        {1e20f, "1E+20", " 1E+20"},
                                                        {-2.5e-9f, "-2.5E-09", "-2.5E-09"}};
  for (const auto& [value, text, str] : cases) {
    EXPECT_EQ(SingleText(value).toStdString(), text);
    EXPECT_EQ(StrText(value).toStdString(), str);
    EXPECT_EQ(ToSingle(SingleText(value)), value);
  }
}

TEST(Numbers, PatternsShowTheDigitsTheyForce) {
  const Cases<QString, float, const char*> cases = {{patterns::Money, 1234.5f, "1,234.50"},
                                                    {patterns::Money, 0.5f, "0.50"},
                                                    {patterns::Money, 0, "0.00"},
                                                    {patterns::Money, -1234567.0f, "-1,234,567.00"},
                                                    {patterns::Money, 999.995f, "1,000.00"},
                                                    {patterns::Money, 100, "100.00"},
                                                    {patterns::Money, -0.001f, "0.00"},
                                                    {patterns::Amount, 12, "12.00"},
                                                    {patterns::Product, 59.97f, "59.97"},
                                                    {patterns::Product, 0.5f, ".50"},
                                                    {patterns::Product, 0, ".00"},
                                                    {patterns::Product, -0.5f, "-.50"},
                                                    {patterns::Report, 1234.5f, "1,234.50"},
                                                    {patterns::Comparison, 1234.5f, "1234.50"},
                                                    {patterns::Comparison, 0, ".00"},
                                                    {patterns::Rate, 7, "7.00"},
                                                    {patterns::Rate, 100, "100.00"},
                                                    {patterns::Position, 5, "5."},
                                                    {patterns::Position, 5.126f, "5.13"},
                                                    {patterns::Position, 0.5f, ".5"},
                                                    {patterns::Inches, 0, "0.00"},
                                                    {patterns::Inches, -0.125f, "-0.13"},
                                                    {QStringLiteral("000"), 7, "007"},
                                                    {QStringLiteral("#,##0"), 1234.5f, "1,235"}};
  for (const auto& [pattern, value, text] : cases)
    EXPECT_EQ(FormatNumber(value, pattern).toStdString(), text);
}

// Halves are those of the digits that a person sees, not of the binary value behind them: 1.005 is stored as
// less.
TEST(Numbers, HalvesGoAwayFromZero) {
  const Cases<float, const char*> cases = {
      {1.005f, "1.01"},  {2.675f, "2.68"}, {-1.005f, "-1.01"}, {0.005f, "0.01"}, {0.0049f, "0.00"},
      {9.995f, "10.00"}, {0.995f, "1.00"}, {0.05f, "0.05"},    {99.5f, "99.50"}, {0.0005f, "0.00"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(FormatNumber(value, patterns::Money).toStdString(), text);
  EXPECT_EQ(FormatNumber(1.005, patterns::Money), "1.01");
}

TEST(Numbers, FormattingATextLeavesWhatIsNoNumber) {
  EXPECT_EQ(FormatText({}, patterns::Money), "");
  EXPECT_EQ(FormatText("12", patterns::Amount), "12.00");
  EXPECT_EQ(FormatText("1,234.565", patterns::Amount), "1,234.57");
  EXPECT_EQ(FormatText("tba", patterns::Amount), "tba");
  EXPECT_EQ(FormatText("(5)", patterns::Amount), "-5.00");
}

}  // namespace
