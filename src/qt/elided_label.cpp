#include "qt/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace quillane {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), mode_(mode) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect place = contentsRect();
  // A "&" in a client's name is a letter here, and no access key.
  style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                        fontMetrics().elidedText(text(), mode_, place.width()), foregroundRole());
}

}  // namespace quillane
