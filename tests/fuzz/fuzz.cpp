// Feeds the readers with anything and checks what must hold for every input.
//
//   quillane_fuzz [CASES [SEED]]    random inputs, the same ones for the same seed
//   quillane_fuzz --replay FILE     one input, as a failure wrote it
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <bit>
#include <cmath>
#include <cstdio>
#include <random>
#include <stdexcept>

#include "address.h"
#include "model/proposal.h"
#include "platform/array.h"
#include "platform/codepage.h"
#include "platform/dates.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "property_language.h"
#include "settings/preferences.h"
#include "unit/fake_desk.h"

using namespace quillane;

namespace {

void Require(bool holds, const char* what) {
  if (!holds) throw std::logic_error(what);
}

/// True when `body` came to its end; it may stop with an overflow and with nothing else.
template <class Body>
bool OrOverflow(Body body) {
  try {
    body();
    return true;
  } catch (const RuntimeError& error) {
    Require(error.Number() == errors::Overflow, "only an overflow may stop a number");
    return false;
  }
}

void CheckNumberText(const QString& text) {
  OrOverflow([&] { Require(std::isfinite(Val(text)), "Val is finite"); });
  if (!IsNumeric(text)) return;
  Require(std::isfinite(ToDouble(text)), "a numeric text has a value");
  const QString money = FormatText(text, patterns::Money);
  Require(FormatText(money, patterns::Money) == money, "formatting twice changes nothing");
  OrOverflow([&] {
    const float value = ToSingle(text);
    Require(ToSingle(SingleText(value)) == value, "a single reads back");
    Require(ToSingle(StrText(value)) == value, "a single with a leading blank reads back");
  });
}

void CheckSingle(float value) {
  if (!std::isfinite(value)) return;
  Require(ToSingle(SingleText(value)) == value, "any single reads back");
  for (const QString& pattern : {patterns::Money, patterns::Product, patterns::Comparison, patterns::Rate}) {
    const QString text = FormatNumber(value, pattern);
    Require(IsNumeric(text), "a formatted number is numeric");
    // Half a cent, and what the shortest digits and the stored value are apart.
    const double slack = 0.0050001 + std::abs(value) * 1e-7;
    Require(std::abs(ToDouble(text) - static_cast<double>(value)) <= slack, "a format rounds to the cent");
  }
}

void CheckDate(const QString& text) {
  const auto date = ParseDate(text);
  if (!date) return;
  Require(date->isValid(), "a date is one of the calendar");
  Require(ParseDate(LongDate(*date)) == date || date->year() < 1000, "a date reads back");
}

void CheckCodePage(const QString& text) {
  const QString folded = FoldToCodePage(text);
  Require(FoldToCodePage(folded) == folded, "folding twice changes nothing");
  Require(FromCodePage(ToCodePage(folded)) == folded, "what was folded is what the file holds");
}

void CheckPreferences(const QByteArray& file) {
  ReplaceFile(prefs.ProgramFolder + "UserPreferences.txt", file);
  ResetState();
  GetUserPreferences();
  Require(!prefs.ProposalFolder.isEmpty() && !proposal.CurrentFolder.isEmpty(),
          "there is a folder for proposals");
  Require(prefs.DefaultFont.FontSize > 0 && !prefs.DefaultFont.FontName.isEmpty(), "there is a font");
  const QStringList lines = prefs.PrefLines;
  if (lines.isEmpty()) return;
  Require(SaveUserPreferences(), "the preferences can be saved");
  GetUserPreferences();
  Require(prefs.PrefLines == lines, "the preferences read back");
}

void CheckTexts(const QByteArray& bytes) {
  const QString text = FromCodePage(bytes);
  CheckNumberText(text);
  CheckDate(text);
  CheckCodePage(text);
  CheckCodePage(QString::fromUtf8(bytes));
  std::uint32_t bits = 0;
  for (const char c : bytes) bits = bits * 31 + static_cast<unsigned char>(c);
  CheckSingle(std::bit_cast<float>(bits * 2654435761U));
}

/// Inputs that are nearly right find more than noise does: pieces of what the readers know, put together and
/// damaged.
class Inputs {
 public:
  explicit Inputs(unsigned seed) : random_(seed) {}

  QByteArray Text() {
    static const QByteArrayList pieces = {
        "1",    "9",   "0.005",   ",",         ".",       "-",    "+",   "$",    "(",       ")", "e",
        "E+38", " ",   "999",     "1/15/2008", "January", "Jan",  " 15", ", ",   "2008",    "/", "08",
        "4:30", " PM", "Tuesday", "\xD8",      "\x80",    "\x8D", "\t",  "\r\n", "\xC5\x81"};
    QByteArray text;
    for (auto left = Below(7); left > 0; --left) text += pieces[Below(pieces.size())];
    return Damaged(text);
  }

  QByteArray Preferences() {
    QByteArray file;
    for (int i = 0; i < static_cast<int>(Setting::Count); ++i) {
      if (Below(40) == 0) continue;
      file += SettingKey(static_cast<Setting>(i)).toLatin1() + Value() + (Below(30) == 0 ? "\n" : "\r\n");
    }
    return Damaged(file);
  }

  std::mt19937& Random() { return random_; }

 private:
  qsizetype Below(qsizetype bound) {
    return static_cast<qsizetype>(random_() % static_cast<unsigned long>(bound));
  }

  QByteArray Value() {
    static const QByteArrayList values = {
        "", "True", "False", "720", "-1e99", "Arial", "Left=1:Top=x:Width=", "F:\\"};
    return Below(6) == 0 ? Text() : values[Below(values.size())];
  }

  QByteArray Damaged(QByteArray bytes) {
    for (auto times = Below(4); times > 0 && !bytes.isEmpty(); --times) {
      const qsizetype at = Below(bytes.size());
      if (Below(3) == 0) {
        bytes.remove(at, 1 + Below(3));
      } else {
        bytes[at] = static_cast<char>(Below(256));
      }
    }
    return bytes;
  }

  std::mt19937 random_;
};

/// A reader, and what is made for it.
struct Target {
  void (*check)(const QByteArray& input);
  QByteArray (*make)(Inputs& inputs);
};
const Array<Target> textTargets{
    {CheckTexts, [](Inputs& inputs) { return inputs.Text(); }},
    {test::CheckAddressLists, [](Inputs& inputs) { return test::AddressListInput(inputs.Random()); }},
    {test::CheckContacts, [](Inputs& inputs) { return test::ContactsInput(inputs.Random()); }}};
const Array<Target> fileTargets{
    {CheckPreferences, [](Inputs& inputs) { return inputs.Preferences(); }},
    {test::CheckPropertyLanguage, [](Inputs& inputs) { return test::PropertyFileInput(inputs.Random()); }},
    {test::CheckAddressFile, [](Inputs& inputs) { return test::AddressFileInput(inputs.Random()); }}};

/// Says what failed and keeps the input for --replay.
bool Survives(const QByteArray& input, const Target& target) {
  QByteArray why;
  try {
    target.check(input);
    return true;
  } catch (const std::exception& failure) {
    why = failure.what();
  }
  QFile kept("fuzz-failure.bin");
  if (kept.open(QIODevice::WriteOnly)) kept.write(input);
  std::fprintf(stderr, "%s\ninput (hex): %s\n", why.constData(), input.toHex(' ').constData());
  return false;
}

bool RunRandom(int cases, unsigned seed) {
  constexpr int CasesToAFile = 100;  // a written file costs as much as many texts
  Inputs inputs(seed);
  for (int i = 0; i < cases; ++i) {
    const Target& target = i % CasesToAFile == 0 ? fileTargets[i / CasesToAFile % fileTargets.size()]
                                                 : textTargets[i % textTargets.size()];
    if (Survives(target.make(inputs), target)) continue;
    std::fprintf(stderr, "case %d of seed %u\n", i, seed);
    return false;
  }
  std::printf("%d inputs, seed %u\n", cases, seed);
  return true;
}

// The file does not say which reader it was made for; it must do no harm to any.
bool Replay(const QByteArray& input) {
  bool survived = true;
  for (const auto* targets : {&textTargets, &fileTargets})
    for (const Target& target : *targets) survived = Survives(input, target) && survived;
  return survived;
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  test::FakeDesk desk;
  prefs.ProgramFolder = folder.path() + u'/';
  ResetState();
  SetDrivesFolder(prefs.ProgramFolder + "drives");
  QDir(prefs.ProgramFolder).mkpath("drives/F");
  if (argc == 3 && qstrcmp(argv[1], "--replay") == 0)
    return Replay(ReadWholeFile(QString::fromLocal8Bit(argv[2]))) ? 0 : 1;
  const int cases = argc > 1 ? QByteArray(argv[1]).toInt() : 20000;
  const unsigned seed = argc > 2 ? QByteArray(argv[2]).toUInt() : 20261122;
  return RunRandom(cases, seed) ? 0 : 1;
}
