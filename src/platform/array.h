// Arrays as the pages number things: whole-number indices from 0, and an index outside is a report, not a
// crash.
#pragma once
#include <QString>
#include <array>
#include <utility>
#include <vector>

#include "platform/runtime_error.h"

namespace quillane {

/// Throws 9 unless 0 <= index < count.
inline void RequireIndex(int index, int count) {
  if (index < 0 || index >= count)
    Raise(errors::Subscript, QStringLiteral("number %1 of %2").arg(index).arg(count));
}

/// A list of things with numbers from 0.
template <class T>
class Array {
 public:
  Array() = default;
  explicit Array(int count, const T& value = T()) : items_(Size(count), value) {}
  Array(std::initializer_list<T> items) : items_(items) {}

  T& operator[](int index) { return RequireIndex(index, size()), items_[Size(index)]; }
  const T& operator[](int index) const { return RequireIndex(index, size()), items_[Size(index)]; }
  T& front() { return (*this)[0]; }
  const T& front() const { return (*this)[0]; }
  T& back() { return (*this)[size() - 1]; }
  const T& back() const { return (*this)[size() - 1]; }
  int size() const { return static_cast<int>(items_.size()); }
  bool empty() const { return items_.empty(); }
  void clear() { items_.clear(); }
  void reserve(int count) { items_.reserve(Size(count)); }
  void push_back(T item) { items_.push_back(std::move(item)); }
  template <class... Arguments>
  T& emplace_back(Arguments&&... arguments) {
    return items_.emplace_back(std::forward<Arguments>(arguments)...);
  }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  auto rbegin() const { return items_.rbegin(); }
  auto rend() const { return items_.rend(); }
  bool operator==(const Array&) const = default;

 private:
  static constexpr size_t Size(int count) { return static_cast<size_t>(count); }
  std::vector<T> items_;
};

/// The same with a fixed count.
template <class T, int Count>
class FixedArray {
 public:
  T& operator[](int index) { return RequireIndex(index, Count), items_[static_cast<size_t>(index)]; }
  const T& operator[](int index) const {
    return RequireIndex(index, Count), items_[static_cast<size_t>(index)];
  }
  static constexpr int size() { return Count; }
  void fill(const T& value) { items_.fill(value); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  bool operator==(const FixedArray&) const = default;

 private:
  std::array<T, static_cast<size_t>(Count)> items_{};
};

}  // namespace quillane
