// The one exception type of the program: a number and a description, as the error report shows them.
#pragma once
#include <QString>
#include <exception>

namespace quillane {

/// Error numbers that the program raises itself.
namespace errors {
inline constexpr int InvalidProcedureCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int Subscript = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int InvalidPicture = 481;
inline constexpr int Printer = 482;
}  // namespace errors

class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, QString description);
  int Number() const { return number_; }
  /// A sentence a person understands; never empty.
  const QString& Description() const { return description_; }
  const char* what() const noexcept override { return utf8_.constData(); }

 private:
  int number_;
  QString description_;
  QByteArray utf8_;
};

/// Throws a RuntimeError with the standard description of `number`, followed by `detail` where there is one.
[[noreturn]] void Raise(int number, const QString& detail = QString());

}  // namespace quillane
