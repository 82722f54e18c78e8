#pragma once
#include <QLabel>
#include <QString>

namespace velmora {

// The sample line of the system window's font choice, drawn in the chosen
// face. A face that this machine lacks is drawn in the face that stands in
// for it, and a second line says so, naming the one in use.
class cFontPreview : public QWidget {
 public:
  explicit cFontPreview(QWidget* parent);
  void ShowFace(const QString& face);

 private:
  QLabel* m_pSample;
  QLabel* m_pStandIn;
};

}  // namespace velmora
