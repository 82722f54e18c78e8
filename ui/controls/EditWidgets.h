#pragma once
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>
#include <functional>

namespace velmora {

// The widgets behind the edit controls. They only report; every rule lives
// in the bound control.

class cLineEdit : public QLineEdit {
 public:
  explicit cLineEdit(QWidget* parent) : QLineEdit(parent) {}
  // Decides whether a typed character gets in; null lets all in.
  std::function<bool(unsigned code)> acceptChar;
  // Turns an input method's result into the keys to type; null inserts it.
  std::function<QString(const QString& commit)> commitToKeys;
  std::function<void()> onFocusOut;
  bool IsBackspaceDown() const { return m_bBackspaceDown; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool m_bBackspaceDown = false;
};

class cPlainEdit : public QPlainTextEdit {
 public:
  explicit cPlainEdit(QWidget* parent) : QPlainTextEdit(parent) {}
  std::function<void()> onFocusOut;
  bool IsBackspaceDown() const { return m_bBackspaceDown; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool m_bBackspaceDown = false;
};

// The arrows beside a numeric edit. It keeps no value: it only reports
// steps up (+1) and down (-1).
class cSpinButtons : public QWidget {
 public:
  explicit cSpinButtons(QWidget* parent);
  std::function<void(int delta)> onStep;
};

// Shows the front image of a picture control.
class cPictureView : public QWidget {
 public:
  cPictureView(QWidget* parent, int width, int height);
  QImage& Front() { return m_front; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage m_front;
};

}  // namespace velmora
