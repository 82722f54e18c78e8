#include "ui/controls/EditWidgets.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace velmora {


void cLineEdit::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  const bool typed = text.size() == 1 && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (typed && acceptChar && !acceptChar(text.at(0).unicode())) {
    event->accept();
    return;
  }
  // Backspace is known while the key is handled, so a change can tell
  // that it came from Backspace.
  m_bBackspaceDown = event->key() == Qt::Key_Backspace;
  QLineEdit::keyPressEvent(event);
  m_bBackspaceDown = false;
}

void cLineEdit::inputMethodEvent(QInputMethodEvent* event) {
  if (!commitToKeys || event->commitString().isEmpty()) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  QInputMethodEvent composing(event->preeditString(), event->attributes());
  QLineEdit::inputMethodEvent(&composing);
  for (QChar key : commitToKeys(event->commitString())) {
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, QString(key));
    keyPressEvent(&typed);
  }
}

void cLineEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (onFocusOut) onFocusOut();
}

void cPlainEdit::keyPressEvent(QKeyEvent* event) {
  m_bBackspaceDown = event->key() == Qt::Key_Backspace;
  QPlainTextEdit::keyPressEvent(event);
  m_bBackspaceDown = false;
}

void cPlainEdit::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (onFocusOut) onFocusOut();
}

cSpinButtons::cSpinButtons(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  for (int delta : {1, -1}) {
    auto* button = new QToolButton(this);
    button->setArrowType(delta > 0 ? Qt::UpArrow : Qt::DownArrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(16, 11);
    connect(button, &QToolButton::clicked, this, [this, delta] {
      if (onStep) onStep(delta);
    });
    layout->addWidget(button);
  }
}

cPictureView::cPictureView(QWidget* parent, int width, int height)
    : QWidget(parent), m_front(width, height, QImage::Format_RGB32) {
  m_front.fill(Qt::black);
  setFixedSize(width, height);
}

void cPictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(0, 0, m_front);
}

}  // namespace velmora
