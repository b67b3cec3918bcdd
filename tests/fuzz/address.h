// The address books, the lists that are imported into them, and contacts.
#pragma once
#include <QByteArray>
#include <random>

namespace quillane::test {

/// A book of these bytes opens, and each of its records is saved without harm to another.
void CheckAddressFile(const QByteArray& bytes);
/// Both parsers take these bytes; the one with the shortcuts gives what the slow way gives, step by step.
void CheckAddressLists(const QByteArray& bytes);
/// A file of contacts is read, and a record that comes of it goes out and in again unchanged.
void CheckContacts(const QByteArray& bytes);

QByteArray AddressFileInput(std::mt19937& random);
QByteArray AddressListInput(std::mt19937& random);
QByteArray ContactsInput(std::mt19937& random);

}  // namespace quillane::test
