// Why a statement failed.
#pragma once
#include <QString>
#include <stdexcept>

namespace quillane::scenario {

/// What a statement wanted and what was there instead.
struct Failure : std::exception {
  Failure(QString wanted, QString found) : expected(std::move(wanted)), actual(std::move(found)) {}
  const char* what() const noexcept override { return "a statement failed"; }
  QString expected, actual;
};

/// A statement that does not say what it must.
struct BadStatement : Failure {
  explicit BadStatement(const QString& grammar)
      : Failure(grammar, QStringLiteral("the statement as written")) {}
};

}  // namespace quillane::scenario
