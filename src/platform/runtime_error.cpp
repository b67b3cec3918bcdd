#include "platform/runtime_error.h"

namespace quillane {

namespace {
QString StandardDescription(int number) {
  switch (number) {
    case errors::InvalidProcedureCall:
      return QStringLiteral("Invalid procedure call or argument");
    case errors::Overflow:
      return QStringLiteral("Overflow");
    case errors::Subscript:
      return QStringLiteral("Subscript out of range");
    case errors::DivisionByZero:
      return QStringLiteral("Division by zero");
    case errors::TypeMismatch:
      return QStringLiteral("Type mismatch");
    case errors::FileNotFound:
      return QStringLiteral("File not found");
    case errors::FileExists:
      return QStringLiteral("File already exists");
    case errors::DiskFull:
      return QStringLiteral("Disk full");
    case errors::PermissionDenied:
      return QStringLiteral("Permission denied");
    case errors::PathFileAccess:
      return QStringLiteral("Path/File access error");
    case errors::PathNotFound:
      return QStringLiteral("Path not found");
    case errors::InvalidPicture:
      return QStringLiteral("Invalid picture");
    case errors::Printer:
      return QStringLiteral("Printer error");
    default:
      return QStringLiteral("Application-defined or object-defined error");
  }
}
}  // namespace

RuntimeError::RuntimeError(int number, QString description)
    : number_(number),
      description_(description.isEmpty() ? StandardDescription(number) : std::move(description)),
      utf8_(description_.toUtf8()) {}

void Raise(int number, const QString& detail) {
  QString description = StandardDescription(number);
  if (!detail.isEmpty()) description += QStringLiteral(": ") + detail;
  throw RuntimeError(number, description);
}

}  // namespace quillane
