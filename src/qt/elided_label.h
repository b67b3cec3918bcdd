// A label that gives way: a text too long for its place ends in dots instead of widening the window.
#pragma once
#include <QLabel>

namespace quillane {

class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::TextElideMode mode_;
};

}  // namespace quillane
