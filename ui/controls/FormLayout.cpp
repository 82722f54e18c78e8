#include "ui/controls/FormLayout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <cstring>

#include "ui/controls/EditStr.h"
#include "ui/controls/EditWidgets.h"
#include "ui/controls/TextReflow.h"
#include "ui/framework/Commands.h"
#include "ui/framework/ItemMap.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kNumberWidth = 90;
constexpr int kLineHeight = 18;
// The label column holds labels up to this many full-width characters;
// longer ones stand above their control and wrap to the form's width.
constexpr int kLabelColumnChars = 16;
constexpr char16_t kFullWidthSample = u'\u3042';  // あ

// A label that wraps at the width the form gives it and never asks for
// more, so a long explanation doesn't widen its dialog.
class cWrappingLabel : public QLabel {
 public:
  cWrappingLabel(const QString& text, QWidget* parent) : QLabel(text, parent) { setWordWrap(true); }
  QSize sizeHint() const override { return {minimumSizeHint().width(), QLabel::sizeHint().height()}; }
};

bool FitsLabelColumn(const QString& label, const QFontMetrics& metrics) {
  const int column = metrics.horizontalAdvance(QString(kLabelColumnChars, QChar(kFullWidthSample)));
  const QStringList lines = label.split(QLatin1Char('\n'));
  return std::all_of(lines.begin(), lines.end(),
                     [&](const QString& line) { return metrics.horizontalAdvance(line) <= column; });
}

// Wide enough for the characters the field shows at once; a field for a
// path shows a long path whole. The edit's own hint is 17 'x' wide, with
// its frame and margins around them.
void SizeLineEdit(QLineEdit& edit, const cEditStrDesc& desc) {
  const int chars = ShownChars(TextLimitsOf(desc));
  if (chars == 0) return;
  const QFontMetrics metrics(edit.font());
  const int frame = edit.sizeHint().width() - metrics.horizontalAdvance(QLatin1Char('x')) * 17;
  edit.setMinimumWidth(frame + metrics.averageCharWidth() * chars);
}

// Lines end in a stretch, so that narrow controls and their units stay
// together at the left; later widgets go in before it.
void Append(QHBoxLayout& line, QWidget* widget, bool stretch) {
  line.insertWidget(line.count() - 1, widget, stretch ? 1 : 0);
}

// Makes the widgets of one descriptor into `line`.
class cWidgetMaker {
 public:
  cWidgetMaker(QWidget& parent, QHBoxLayout& line, cItemMap& items) : m_parent(parent), m_line(line), m_items(items) {}

  void operator()(const cButtonDesc& d) { Add(d.id, new QPushButton(Ui(d.text), &m_parent), false); }
  void operator()(const cEditValDesc& d) {
    auto* edit = new cLineEdit(&m_parent);
    edit->setMaximumWidth(kNumberWidth);
    Add(d.id, edit, false);
    if (d.spinId != 0) Add(d.spinId, new cSpinButtons(&m_parent), false);
  }
  void operator()(const cEditStrDesc& d) {
    if (d.lineLimit == 1) {
      auto* edit = new cLineEdit(&m_parent);
      SizeLineEdit(*edit, d);
      Add(d.id, edit, true);
      return;
    }
    auto* edit = new cPlainEdit(&m_parent);
    const int lines = d.lineLimit > 0 ? std::min(d.lineLimit, 8) : 8;
    edit->setMinimumHeight(lines * kLineHeight + 8);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    Add(d.id, edit, true);
  }
  void operator()(const cPictureDesc& d) { Add(d.id, new cPictureView(&m_parent, d.width, d.height), false); }
  void operator()(const cCheckDesc& d) { Add(d.id, new QCheckBox(Ui(d.text), &m_parent), false); }
  void operator()(const cComboDesc& d) { Add(d.id, new QComboBox(&m_parent), false); }
  void operator()(const cSliderDesc& d) { Add(d.id, new QSlider(Qt::Horizontal, &m_parent), true); }
  void operator()(const cStaticDesc& d) { Add(d.id, new QLabel(Ui(d.text), &m_parent), true); }
  void operator()(const cCustomDesc& d) {
    if (d.make) Add(d.id, d.make(&m_parent), true);
  }

 private:
  void Add(int id, QWidget* widget, bool stretch) {
    if (!widget) return;
    if (id != 0) m_items.Set(id, widget);
    Append(m_line, widget, stretch);
  }

  QWidget& m_parent;
  QHBoxLayout& m_line;
  cItemMap& m_items;
};

bool SameGroup(const char* a, const char* b) {
  if (!a || !b) return a == b;
  return std::strcmp(a, b) == 0;
}

// Rows go into the client's grid, or into the grid of their group's frame.
class cFormBuilder {
 public:
  cFormBuilder(QWidget& client, cItemMap& items) : m_client(client), m_items(items) {
    m_pColumn = new QVBoxLayout(&client);
  }

  void AddRow(const cFormRow& row) {
    if (!m_pGrid || !SameGroup(row.group, m_pGroup)) StartGroup(row.group);
    if (!row.sameLine || !m_pLine) {
      StartLine(row.label);
    } else if (row.label) {
      Append(*m_pLine, new QLabel(Ui(row.label), &m_client), false);
    }
    cWidgetMaker maker(m_client, *m_pLine, m_items);
    std::visit(maker, row.control);
    if (row.suffix) Append(*m_pLine, new QLabel(Ui(row.suffix), &m_client), false);
  }

  // A line of controls, with its label in the left column, or above it
  // across the form when the label is too long for the column.
  void StartLine(const char* label) {
    m_pLine = new QHBoxLayout;
    m_pLine->addStretch(0);
    const int r = m_pGrid->rowCount();
    if (!label) {
      m_pGrid->addLayout(m_pLine, r, 0, 1, 2);
      return;
    }
    const QString text = Ui(label);
    if (FitsLabelColumn(text, m_client.fontMetrics())) {
      m_pGrid->addWidget(new QLabel(text, &m_client), r, 0);
      m_pGrid->addLayout(m_pLine, r, 1);
      return;
    }
    m_pGrid->addWidget(new cWrappingLabel(text, &m_client), r, 0, 1, 2);
    m_pGrid->addLayout(m_pLine, r + 1, 0, 1, 2);
  }

  void AddOkCancel() {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto* ok = new QPushButton(Ui("OK"), &m_client);
    ok->setDefault(true);
    auto* cancel = new QPushButton(Ui("キャンセル"), &m_client);
    cancel->setAutoDefault(false);
    m_items.Set(kIdOk, ok);
    m_items.Set(kIdCancel, cancel);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    m_pColumn->addStretch(1);
    m_pColumn->addLayout(buttons);
  }

 private:
  void StartGroup(const char* group) {
    m_pGroup = group;
    m_pLine = nullptr;
    m_pGrid = new QGridLayout;
    m_pGrid->setColumnStretch(1, 1);
    if (!group) {
      m_pColumn->addLayout(m_pGrid);
      return;
    }
    auto* frame = new QGroupBox(Ui(group), &m_client);
    frame->setLayout(m_pGrid);
    m_pColumn->addWidget(frame);
  }

  QWidget& m_client;
  cItemMap& m_items;
  QVBoxLayout* m_pColumn;
  QGridLayout* m_pGrid = nullptr;
  QHBoxLayout* m_pLine = nullptr;
  const char* m_pGroup = nullptr;
};

}  // namespace

void LayoutForm(const cForm& form, QWidget& client, cItemMap& items) {
  cFormBuilder builder(client, items);
  for (const cFormRow& row : form.rows) builder.AddRow(row);
  if (form.okCancel) builder.AddOkCancel();
}

}  // namespace velmora
