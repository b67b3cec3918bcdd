#include "boxes.h"

#include <QRegularExpression>
#include <algorithm>

#include "values.h"

namespace quillane::scenario {

namespace {

/// Scripts write a line break as \n, whatever the platform's is, and need not count blanks that nobody sees.
QString Plain(const QString& text) {
  static const QRegularExpression lineEnd(QStringLiteral("[ \\r]*\n"));
  return QString(text).replace(lineEnd, QStringLiteral("\n"));
}

/// A box that only says OK takes no answer that was meant for a question, nor the other way round.
bool Takes(Buttons buttons, Answer answer) {
  return (buttons == Buttons::Ok) == (answer == Answer::Ok);
}

Answer SafeAnswer(Buttons buttons) {
  if (buttons == Buttons::Ok) return Answer::Ok;
  return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

}  // namespace

std::optional<Boxes::Queued> Boxes::Take(const std::function<bool(const Queued&)>& fits) {
  for (auto at = answers_.begin(); at != answers_.end(); ++at) {
    if (fits(*at)) {
      const Queued taken = *at;
      answers_.erase(at);
      return taken;
    }
    // Only an OK, which no box needs, may be passed over; any other answer belongs to a box before this
    // one's.
    if (at->text || at->answer != Answer::Ok) break;
  }
  return std::nullopt;
}

Answer Boxes::Ask(const QString& text, const QString& title, Buttons buttons) {
  const std::optional<Queued> taken =
      Take([&](const Queued& queued) { return !queued.text && Takes(buttons, queued.answer); });
  Keep(text, title, taken.has_value());
  if (!taken) return SafeAnswer(buttons);
  // A question without a Cancel button is closed by Escape with No.
  return buttons == Buttons::YesNo && taken->answer == Answer::Cancel ? Answer::No : taken->answer;
}

QString Boxes::Input(const QString& prompt, const QString& title, const QString& preset) {
  std::optional<Queued> taken = Take([](const Queued& queued) { return queued.text.has_value(); });
  if (!taken)
    taken = Take([](const Queued& queued) {
      return !queued.text && (queued.answer == Answer::Cancel || queued.answer == Answer::Ok);
    });
  Keep(prompt, title, taken.has_value());
  if (!taken) return {};
  if (taken->text) return *taken->text;
  return taken->answer == Answer::Ok ? preset : QString();
}

void Boxes::Keep(const QString& text, const QString& title, bool answered) {
  Shown box{Plain(text), title, line_, answered};
  box.excused = excused_.contains(box.text);
  if (!foreseen_.empty() && foreseen_.front().Fits(box)) {
    box.asked = true;
    foreseen_.pop_front();
  }
  shown_.push_back(box);
  if (box.asked) reached_ = shown_.size();
}

bool Boxes::Foreseen::Fits(const Shown& box) const {
  if (title && box.title != *title) return false;
  if (match == Match::Exact) return box.text == text;
  QStringList parts;
  for (const QString& part : text.split(QLatin1Char('*'))) parts.append(QRegularExpression::escape(part));
  static constexpr auto Any = QRegularExpression::DotMatchesEverythingOption;
  return QRegularExpression(QRegularExpression::anchoredPattern(parts.join(QLatin1String(".*"))), Any)
      .match(box.text)
      .hasMatch();
}

QString Boxes::Foreseen::Words() const {
  return InQuotes(text) + (title ? QStringLiteral(" title ") + InQuotes(*title) : QString());
}

QString Boxes::Words(const Shown& box) {
  return InQuotes(box.text) + QStringLiteral(" title ") + InQuotes(box.title);
}

QString Boxes::Foresee(const QString& text, const std::optional<QString>& title, Match match) {
  const Foreseen expected{line_, Plain(text), title, match};
  for (size_t at = reached_; foreseen_.empty() && at < shown_.size(); ++at) {
    Shown& box = shown_[at];
    const bool fits = expected.Fits(box);
    if (!fits && box.Settled()) continue;
    // A box that came instead counts as told about too: it is in this line's failure.
    box.asked = true;
    reached_ = at + 1;
    return fits ? QString() : Words(box);
  }
  foreseen_.push_back(expected);
  return {};
}

QString Boxes::Unforeseen() const {
  const auto found =
      std::find_if(shown_.begin(), shown_.end(), [](const Shown& box) { return !box.Settled(); });
  return found == shown_.end() ? QString() : Words(*found);
}

std::vector<Boxes::Fault> Boxes::Faults() const {
  std::vector<Fault> faults;
  for (const Foreseen& missing : foreseen_)
    faults.push_back(
        {missing.line, QStringLiteral("the box ") + missing.Words(), QStringLiteral("it never came")});
  for (const Shown& box : shown_)
    if (!box.Settled())
      faults.push_back({box.line, QStringLiteral("no box that no message line asks for"), Words(box)});
  return faults;
}

QStringList Boxes::Unused() const {
  static const char* const names[] = {"OK", "Yes", "No", "Cancel"};
  QStringList unused;
  for (const Queued& queued : answers_)
    unused.append(queued.text ? InQuotes(*queued.text)
                              : QLatin1String(names[static_cast<int>(queued.answer)]));
  return unused;
}

}  // namespace quillane::scenario
