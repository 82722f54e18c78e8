#pragma once
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "SampleDialog.h"

namespace velmora::testing {

// Answers the move dialog that is about to open: its three numbers and its
// operation typed in, then OK.
inline void AnswerMove(int first, int last, int target, int op, bool* targetEnabled = nullptr) {
  WhenModal([=](QWidget* modal) {
    ASSERT_NE(modal, nullptr);
    const QList<QLineEdit*> edits = modal->findChildren<QLineEdit*>();
    ASSERT_GE(edits.size(), 3);
    const int values[3] = {first, last, target};
    for (int i = 0; i < 3; ++i) {
      edits[i]->selectAll();
      TypeText(edits[i], QString::number(values[i]));
    }
    QComboBox* ops = modal->findChild<QComboBox*>();
    ops->setCurrentIndex(op);
    emit ops->activated(op);  // as the author's choice reports it
    if (targetEnabled) *targetEnabled = edits[2]->isEnabled();
    QTest::keyClick(edits[0], Qt::Key_Return);
  });
}

}  // namespace velmora::testing
