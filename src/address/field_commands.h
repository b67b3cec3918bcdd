// What the keys, the mouse and the clipboard do with the fields of a record.
#pragma once
#include <QString>

namespace quillane {

/// A double-click: names and addresses in proper case, ten digits as a telephone number, a date in its short
/// form; all but a date is then selected.
void DoubleClickField(int index);
/// The tip under the mouse; empty where the field keeps the one that it has.
QString FieldTip(int index);
/// The field that Enter and Down lead to, and that Up leads to; the same one at either end.
int FieldBelow(int index);
int FieldAbove(int index);

/// "(541) 555-0142": digits fill the form from the right, and more than ten go to its first group.
QString PhoneText(const QString& digits);

/// mnuOptCopyAll and mnuOptCopyNameAddress.
void CopyAllCommand();
void CopyNameAddressCommand();

}  // namespace quillane
