// One record of an address book: eleven texts of fixed width, padded with blanks, 520 bytes in all.
#pragma once
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "platform/array.h"

namespace quillane {

/// Whose addresses: the clients', or those of the trade.
enum class Book { Personal, Company };

/// The fields by their places in a record and in the window.
namespace field {
inline constexpr int Name = 0, Address1 = 1, Address2 = 2, City = 3;
inline constexpr int Phone = 4;        ///< the home phone of a person
inline constexpr int SecondPhone = 5;  ///< the work phone of a person, the fax of a company
inline constexpr int Cell = 6, EventDate = 7, Contact = 8, Email = 9, Notes = 10;
inline constexpr int Count = 11;
}  // namespace field

inline constexpr int RecordSize = 520;  ///< bytes

/// How many characters a field holds.
int FieldWidth(int field);

/// The eleven texts as they are typed, of any length.
using FieldTexts = FixedArray<QString, field::Count>;

/// The eleven fields as the file has them: bytes of the code page, each as long as its field is wide.
struct AddressRecord {
  FixedArray<QByteArray, field::Count> Field;
  bool operator==(const AddressRecord&) const = default;
};

/// The record that texts become: each is cut or padded to its field's width.  A cut leaves no half of a line
/// break behind.
AddressRecord RecordOf(const FieldTexts& texts);
/// The texts of a record without the blanks around them.
FieldTexts TextsOf(const AddressRecord& record);

/// The 520 bytes of a record, and the way back; a record cut short has blanks behind what is there.
QByteArray BytesOf(const AddressRecord& record);
AddressRecord RecordFromBytes(QByteArrayView bytes);

/// Without the blanks at both ends; tabs and line breaks stay.
QString TrimBlanks(const QString& text);
QByteArrayView TrimmedBytes(QByteArrayView text);

/// One character for one: a letter whose capital the code page lacks stays as it is.
QByteArray UpperCaseBytes(QByteArrayView text);
QString UpperCase(const QString& text);

/// A text with every line break (CR LF, LF or CR) as CR LF.
QString WithCrLf(const QString& text);
/// What a field takes of a text that is typed, pasted or imported: the characters of the code page, a line
/// break as CR LF in the notes and as a blank elsewhere.
QString FieldInput(int field, const QString& text);

}  // namespace quillane
