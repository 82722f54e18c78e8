#pragma once
#include <QScrollArea>

namespace velmora {

// The scroll area of a form's rows. It asks for the whole height of its
// rows until the form is fitted to the screen, and for the whole width
// always, so it scrolls up and down only and never cuts a control at the
// side. The control that takes the focus, by Tab or otherwise, is scrolled
// into view; the wheel over a combo box or slider without the focus
// scrolls the rows instead of changing the value.
class cFormScrollArea : public QScrollArea {
 public:
  // Takes `rows` as the widget it scrolls.
  cFormScrollArea(QWidget* parent, QWidget* rows);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // The height the area asks for at most: the rows' height less what the
  // window has to give up to fit the screen.
  void LimitViewHeight(int height);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int SideRoom() const;  // frame and vertical bar beside the rows
  int m_nViewHeight;
};

// Fits the window that `client` will fill into its screen: when the form's
// height with the frame around it passes the screen's free height, the
// tallest scroll area gives up the difference.
void FitFormToScreen(QWidget& client);

}  // namespace velmora
