// Plays a script: one statement after the other, also inside the windows that a statement opens.
#pragma once
#include <QObject>
#include <QTextStream>
#include <vector>

#include "world.h"

namespace quillane::scenario {

class Player {
 public:
  Player(QString path, std::vector<Statement> statements, Places places, QTextStream& out);

  /// Runs the application until the script has ended.  True when nothing failed.
  bool Play();

 private:
  /// What stood in front when a statement began: what comes later belongs to it, and the script goes on
  /// inside.
  struct Running {
    QWidget* modal;
    QWidget* popup;
  };

  void Schedule();
  void Tick();
  bool MayGoOn() const;
  void Run(const Statement& statement);
  void Finish();
  void Report(const Statement& statement, const QString& expected, const QString& actual);
  void ReportBoxes();

  QString path_;
  std::vector<Statement> statements_;
  QTextStream& out_;
  World world_;
  QObject clock_;  ///< the owner of the timers that drive the script
  std::vector<Running> running_;
  size_t next_ = 0;
  bool stopped_ = false;  ///< an action failed: what follows makes no sense
  bool finished_ = false;
  int failures_ = 0;
};

}  // namespace quillane::scenario
