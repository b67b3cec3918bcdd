#include "platform/codepage.h"

#include <gtest/gtest.h>

#include "cases.h"

using namespace quillane;
using namespace quillane::test;

namespace {

TEST(CodePage, EveryByteComesBack) {
  QByteArray all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const QString text = FromCodePage(all);
  ASSERT_EQ(text.size(), 256);
  EXPECT_EQ(ToCodePage(text), all);
  EXPECT_EQ(text[0x80], QChar(0x20AC));
  EXPECT_EQ(text[0x9F], QChar(0x0178));
  EXPECT_EQ(text[0xD8], QChar(0x00D8));
  for (const int open : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) EXPECT_EQ(text[open], QChar(open));
}

TEST(CodePage, WhatItLacksBecomesItsClosestEquivalent) {
  const Cases<const char*, const char*> cases = {
      {"Sofía Marín-Núñez", "Sofía Marín-Núñez"},
      {"€ “quotes” ‘and’ – — … ™", "€ “quotes” ‘and’ – — … ™"},
      {"Dvořák Łódź Škoda", "Dvorák Lódz Škoda"},
      {"e\u0301te\u0301", "été"},  // accents typed behind their letters
      {"x\u0301y", "xy"},          // no such letter with an accent
      {"5\u2032 6\u2033 \u2212 1", "5' 6\" - 1"},
      {"a\u2009b\u3000c\u2028d", "a b c d"},
      {"zero\u200Bwidth\uFEFF", "zerowidth"},
      {"\uFB01ne \u2167 \u2153", "fine VIII 1/3"},
      {"\uFF21\uFF11", "A1"},
      {"\u0416\u4E2D", "??"},
      {"party \U0001F389!", "party ?!"},
      {"tab\tline\nend\x7F", "tab\tline end "},
      {"\u1E9E", "ß"},
      {"", ""}};
  for (const auto& [typed, kept] : cases)
    EXPECT_EQ(FoldToCodePage(QString::fromUtf8(typed)), QString::fromUtf8(kept)) << typed;
}

TEST(CodePage, HalfASurrogatePairIsOneQuestionMark) {
  EXPECT_EQ(FoldToCodePage(QString(QChar(0xD83C)) + u'x'), "?x");
  EXPECT_EQ(FoldToCodePage(u'x' + QString(QChar(0xDC00))), "x?");
}

TEST(CodePage, FilesKeepTheirLineEndsWhileTheirTextFolds) {
  EXPECT_EQ(ToCodePage(QString::fromUtf8("Łódź\r\nline 2\r\n")), QByteArray("L\xF3"
                                                                            "dz\r\nline 2\r\n"));
}

TEST(CodePage, WhatWasFoldedOnceStays) {
  for (uint c = 1; c < 0x10000; ++c) {
    const QString folded = FoldToCodePage(QString(QChar(static_cast<char16_t>(c))));
    EXPECT_EQ(FoldToCodePage(folded), folded) << c;
    EXPECT_EQ(FromCodePage(ToCodePage(folded)), folded) << c;
  }
}

}  // namespace
