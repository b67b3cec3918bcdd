// Message and input boxes in a scenario: what answers them, what was said, and what was foreseen.
#pragma once
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "ui/desk.h"

namespace quillane::scenario {

/// How a `message` line compares: letter for letter, or with "*" standing for anything.
enum class Match { Exact, Like };

/// Keeps the `answer` lines until a box takes them, and compares the boxes that come with the `message`
/// lines, which may stand before or after the statement that brings the box.
class Boxes {
 public:
  /// Takes the next fitting answer, or closes the box as a person in a hurry would: OK, Cancel, else No.
  Answer Ask(const QString& text, const QString& title, Buttons buttons);
  /// The next input box's text; empty, which is Cancel, where nothing was foreseen.
  QString Input(const QString& prompt, const QString& title, const QString& preset);

  void QueueAnswer(Answer answer) { answers_.push_back({answer, std::nullopt}); }
  void QueueText(const QString& text) { answers_.push_back({Answer::Ok, text}); }

  /// True while an answer waits for its box.
  bool HasAnswer() const { return !answers_.empty(); }

  /// `message`: the next box says exactly that.  What differs, in words; empty when it fits or has still to
  /// come.
  QString Foresee(const QString& text, const std::optional<QString>& title = {}, Match match = Match::Exact);
  /// `nomessage`: every box so far was foreseen or answered.  What came, in words; empty for none.
  QString Unforeseen() const;
  /// A box that may come unasked: it is kept, and a `message` line may still ask for it.
  void Excuse(const QString& text) { excused_.append(text); }
  void EndExcuses() { excused_.clear(); }

  /// What is wrong at the script's end.
  struct Fault {
    int line;  ///< of the `message` line, or of the statement that brought the box
    QString expected, actual;
  };
  /// Every box that no `message` line asked for, and every `message` line whose box never came.
  std::vector<Fault> Faults() const;
  /// The line of the statement at work, for the boxes that it brings.
  void SetLine(int line) { line_ = line; }
  /// Answers that nobody asked for, in words.
  QStringList Unused() const;

 private:
  struct Queued {
    Answer answer;
    std::optional<QString> text;
  };
  struct Shown {
    QString text, title;
    int line;
    bool answered, asked = false, excused = false;
    bool Settled() const { return answered || asked || excused; }
  };
  struct Foreseen {
    int line;
    QString text;
    std::optional<QString> title;
    Match match;
    bool Fits(const Shown& box) const;
    QString Words() const;
  };

  std::optional<Queued> Take(const std::function<bool(const Queued&)>& fits);
  void Keep(const QString& text, const QString& title, bool answered);
  static QString Words(const Shown& box);

  std::deque<Queued> answers_;
  std::deque<Foreseen> foreseen_;
  std::vector<Shown> shown_;
  size_t reached_ = 0;  ///< boxes before this one have been passed by a `message` line
  QStringList excused_;
  int line_ = 0;
};

}  // namespace quillane::scenario
