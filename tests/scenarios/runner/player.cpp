#include "player.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <algorithm>

#include "failure.h"
#include "platform/runtime_error.h"
#include "statements.h"

namespace quillane::scenario {

namespace {

enum class OnFailure { GoOn, Stop };
struct Found {
  const Handler* handler = nullptr;
  OnFailure onFailure = OnFailure::Stop;
};

Found FindHandler(const QString& verb) {
  const auto in = [&](const Handlers& handlers) {
    const auto found = handlers.find(verb);
    return found == handlers.end() ? nullptr : &found->second;
  };
  if (const Handler* handler = in(ExpectationStatements())) return {handler, OnFailure::GoOn};
  if (const Handler* handler = in(ActionStatements())) return {handler, OnFailure::Stop};
  return {in(SceneStatements()), OnFailure::Stop};
}

}  // namespace

Player::Player(QString path, std::vector<Statement> statements, Places places, QTextStream& out)
    : path_(std::move(path)),
      statements_(std::move(statements)),
      out_(out),
      world_(QFileInfo(path_).absolutePath(), QFileInfo(path_).completeBaseName(), std::move(places)) {}

bool Player::Play() {
  Schedule();
  // The program's own end quits the application; the script goes on until it has ended itself.
  while (!finished_) QApplication::exec();
  return failures_ == 0;
}

/// A timer whose own function still runs is asleep in the loops that it opened: every look has a timer of its
/// own.
void Player::Schedule() {
  QTimer::singleShot(0, &clock_, [this] {
    if (finished_) return;
    Schedule();
    Tick();
  });
}

bool Player::MayGoOn() const {
  if (world_.desk.Serving()) return false;
  if (running_.empty()) return true;
  // A statement is still at work.  The script goes on inside the window or menu that it has opened, and waits
  // for anything else.
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* popup = QApplication::activePopupWidget();
  return (modal && modal != running_.back().modal && modal->isVisible()) ||
         (popup && popup != running_.back().popup);
}

void Player::Tick() {
  if (!MayGoOn()) return;
  if (stopped_ || next_ == statements_.size()) return Finish();
  const Statement& statement = statements_[next_++];
  world_.desk.boxes.SetLine(statement.line);
  running_.push_back({QApplication::activeModalWidget(), QApplication::activePopupWidget()});
  Run(statement);
  world_.stage.KeepActive();
  running_.pop_back();
  if (running_.empty()) world_.EndIfLeft();
}

void Player::Run(const Statement& statement) {
  const Found found = FindHandler(statement.Verb());
  try {
    if (!found.handler)
      throw Failure(QStringLiteral("a statement"), QStringLiteral("a word that none begins with"));
    (*found.handler)(world_, statement);
    return;
  } catch (const Failure& failure) {
    Report(statement, failure.expected, failure.actual);
  } catch (const RuntimeError& error) {
    Report(statement, QStringLiteral("no error"),
           QStringLiteral("error %1: %2").arg(error.Number()).arg(error.Description()));
  } catch (const std::exception& error) {
    Report(statement, QStringLiteral("no error"), QString::fromUtf8(error.what()));
  }
  if (found.onFailure == OnFailure::Stop) stopped_ = true;
}

/// Closes what still stands, so that every statement that opened a window returns, and ends.
void Player::Finish() {
  if (!running_.empty()) {
    stopped_ = true;
    if (QWidget* popup = QApplication::activePopupWidget())
      popup->close();
    else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
      dialog->done(QDialog::Rejected);
    return;
  }
  ReportBoxes();
  finished_ = true;
  world_.End();
  QApplication::quit();
}

void Player::Report(const Statement& statement, const QString& expected, const QString& actual) {
  ++failures_;
  out_ << path_ << ':' << statement.line << ": " << statement.source << "\n  expected: " << expected
       << "\n  found:    " << actual << '\n';
}

void Player::ReportBoxes() {
  const Boxes& boxes = world_.desk.boxes;
  for (const Boxes::Fault& fault : boxes.Faults()) {
    const auto at = std::find_if(statements_.begin(), statements_.end(),
                                 [&](const Statement& statement) { return statement.line == fault.line; });
    Report(at == statements_.end() ? Statement{} : *at, fault.expected, fault.actual);
  }
  for (const QString& unused : boxes.Unused())
    out_ << path_ << ": note: nobody took the answer " << unused << '\n';
}

}  // namespace quillane::scenario
