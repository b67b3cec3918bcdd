// lstNames: the names of the open book.
#pragma once
#include <QAbstractListModel>
#include <QListView>
#include <functional>

namespace quillane {

/// The rows of the address book's list as they are shown: without the blanks behind a company's name.
class NameModel : public QAbstractListModel {
 public:
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  /// The next row from `start` on whose text begins with what was typed.
  QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                        Qt::MatchFlags flags) const override;
  /// The list has been filled anew.
  void Refill();

 private:
  int rows_ = 0;
};

class NamesView : public QListView {
 public:
  /// `chosen` is told the row, counted from 0, that a click or a key has led to.
  explicit NamesView(std::function<void(int)> chosen);
  void ShowState();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Choose();

  NameModel model_;
  std::function<void(int)> chosen_;
  int revision_ = -1;  ///< of the filling that shows
  int lastRow_ = 0;    ///< that was chosen; keys go on from there when no row is selected
  bool showing_ = false;
};

}  // namespace quillane
