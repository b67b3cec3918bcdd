// The property language under attack: files of lines that are nearly right, and what must hold for all of
// them.
#pragma once
#include <QByteArray>
#include <random>

namespace quillane::test {

/// A property or format file made of true lines, joined, cut and damaged.
QByteArray PropertyFileInput(std::mt19937& random);
/// Applies the file as a property file and as a format.  Throws std::logic_error where something does not
/// hold.
void CheckPropertyLanguage(const QByteArray& file);

}  // namespace quillane::test
