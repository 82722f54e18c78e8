#include "ui/controls/FormLayout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <cstring>

#include "ui/controls/EditStr.h"
#include "ui/controls/EditWidgets.h"
#include "ui/controls/FormScrollArea.h"
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

// The text of a check box that wraps: a click on it is a click on the box,
// and it greys with the box.
class cCheckCaption : public cWrappingLabel {
 public:
  cCheckCaption(const QString& text, QAbstractButton* box, QWidget* parent)
      : cWrappingLabel(text, parent), m_pBox(box) {
    box->installEventFilter(this);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && m_pBox->isEnabled() && rect().contains(event->position().toPoint())) {
      m_pBox->click();
    }
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == m_pBox && event->type() == QEvent::EnabledChange) setEnabled(m_pBox->isEnabled());
    return false;
  }

 private:
  QAbstractButton* m_pBox;
};

bool FitsLabelColumn(const QString& label, const QFontMetrics& metrics) {
  const int column = metrics.horizontalAdvance(QString(kLabelColumnChars, QChar(kFullWidthSample)));
  const QStringList lines = label.split(QLatin1Char('\n'));
  return std::all_of(lines.begin(), lines.end(),
                     [&](const QString& line) { return metrics.horizontalAdvance(line) <= column; });
}

// Wide enough for the characters the field shows at once; a field for a
// path shows a long path whole, and one that counts characters shows as
// many full-width ones as it takes. The edit's own hint is 17 'x' wide,
// with its frame and margins around them.
void SizeLineEdit(QLineEdit& edit, const cEditStrDesc& desc) {
  const cTextLimits limits = TextLimitsOf(desc);
  const QFontMetrics metrics(edit.font());
  const int frame = edit.sizeHint().width() - metrics.horizontalAdvance(QLatin1Char('x')) * 17;
  if (const int chars = ShownChars(limits); chars > 0) {
    edit.setMinimumWidth(frame + metrics.averageCharWidth() * chars);
  } else if (desc.countChars && desc.width > 0) {
    edit.setMinimumWidth(frame + metrics.horizontalAdvance(QChar(kFullWidthSample)) * limits.width);
  }
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
  void operator()(const cCheckDesc& d) {
    if (!d.wrap) {
      Add(d.id, new QCheckBox(Ui(d.text), &m_parent), false);
      return;
    }
    auto* box = new QCheckBox(&m_parent);
    m_items.Set(d.id, box);
    m_line.insertWidget(m_line.count() - 1, box, 0, Qt::AlignTop);
    Append(m_line, new cCheckCaption(Ui(d.text), box, &m_parent), true);
  }
  // Made with its rows, so that the form is laid out for the longest even
  // where it measures itself before the fields are bound.
  void operator()(const cComboDesc& d) {
    auto* box = new QComboBox(&m_parent);
    for (const std::string& text : d.texts) box->addItem(FromCp932(text));
    Add(d.id, box, false);
  }
  void operator()(const cSliderDesc& d) { Add(d.id, new QSlider(Qt::Horizontal, &m_parent), true); }
  void operator()(const cStaticDesc& d) { Add(d.id, new QLabel(Ui(d.text), &m_parent), true); }
  void operator()(const cSoundPreviewDesc& d) { Add(d.id, new QPushButton(Ui("再生"), &m_parent), false); }
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

// Rows go into the grid of the column they stand in, or into the grid of
// their group's frame; a block opens a builder of its own for its rows.
class cFormBuilder {
 public:
  cFormBuilder(QWidget& parent, QVBoxLayout& column, cItemMap& items)
      : m_parent(parent), m_items(items), m_column(column) {}

  void AddRows(const std::vector<cFormRow>& rows) {
    for (const cFormRow& row : rows) AddRow(row);
  }

  void AddRow(const cFormRow& row) {
    if (row.block && row.block->kind == cFormBlock::kInline) {
      AddRows(row.block->columns.front());
      return;
    }
    if (!m_pGrid || !SameGroup(row.group, m_pGroup)) StartGroup(row.group);
    if (row.block) {
      AddBlock(*row.block);
      return;
    }
    if (!row.sameLine || !m_pLine) {
      StartLine(row.label);
    } else if (row.label) {
      Append(*m_pLine, new QLabel(Ui(row.label), Container()), false);
    }
    cWidgetMaker maker(*Container(), *m_pLine, m_items);
    std::visit(maker, row.control);
    if (row.suffix) Append(*m_pLine, new QLabel(Ui(row.suffix), Container()), false);
  }

  void AddOkCancel() {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto* ok = new QPushButton(Ui("OK"), &m_parent);
    ok->setDefault(true);
    auto* cancel = new QPushButton(Ui("キャンセル"), &m_parent);
    cancel->setAutoDefault(false);
    m_items.Set(kIdOk, ok);
    m_items.Set(kIdCancel, cancel);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    m_column.addStretch(1);
    m_column.addLayout(buttons);
  }

 private:
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
    if (FitsLabelColumn(text, m_parent.fontMetrics())) {
      m_pGrid->addWidget(new QLabel(text, Container()), r, 0);
      m_pGrid->addLayout(m_pLine, r, 1);
      return;
    }
    m_pGrid->addWidget(new cWrappingLabel(text, Container()), r, 0, 1, 2);
    m_pGrid->addLayout(m_pLine, r + 1, 0, 1, 2);
  }

  void StartGroup(const char* group) {
    m_pGroup = group;
    m_pLine = nullptr;
    m_pGrid = new QGridLayout;
    m_pGrid->setColumnStretch(1, 1);
    m_pFrame = nullptr;
    if (!group) {
      m_column.addLayout(m_pGrid);
      return;
    }
    m_pFrame = new QGroupBox(Ui(group), &m_parent);
    m_pFrame->setLayout(m_pGrid);
    m_column.addWidget(m_pFrame);
  }

  // A block is a line of its own across the label and control columns.
  void AddBlock(const cFormBlock& block) {
    m_pLine = nullptr;
    const int r = m_pGrid->rowCount();
    switch (block.kind) {
      case cFormBlock::kGroup: {
        auto* frame = new QGroupBox(Ui(block.title ? block.title : ""), Container());
        BuildColumn(*frame, block.columns.front());
        m_pGrid->addWidget(frame, r, 0, 1, 2);
        break;
      }
      case cFormBlock::kColumns: {
        auto* side = new QHBoxLayout;
        for (const std::vector<cFormRow>& rows : block.columns) {
          auto* column = new QWidget(Container());
          BuildColumn(*column, rows)->setContentsMargins(0, 0, 0, 0);
          side->addWidget(column, 1, Qt::AlignTop);
        }
        m_pGrid->addLayout(side, r, 0, 1, 2);
        break;
      }
      case cFormBlock::kScroll: {
        auto* rows = new QWidget;
        // A view taller than its rows keeps them at the top.
        BuildColumn(*rows, block.columns.front())->addStretch(1);
        m_pGrid->addWidget(new cFormScrollArea(Container(), rows), r, 0, 1, 2);
        m_pGrid->setRowStretch(r, 1);
        break;
      }
      case cFormBlock::kInline: break;
    }
  }

  // The rows as a column of their own inside `widget`.
  QVBoxLayout* BuildColumn(QWidget& widget, const std::vector<cFormRow>& rows) {
    auto* column = new QVBoxLayout(&widget);
    cFormBuilder inner(widget, *column, m_items);
    inner.AddRows(rows);
    return column;
  }

  // Where the widgets of the present line are made.
  QWidget* Container() const { return m_pFrame ? static_cast<QWidget*>(m_pFrame) : &m_parent; }

  QWidget& m_parent;
  cItemMap& m_items;
  QVBoxLayout& m_column;
  QGridLayout* m_pGrid = nullptr;
  QHBoxLayout* m_pLine = nullptr;
  QGroupBox* m_pFrame = nullptr;
  const char* m_pGroup = nullptr;
};

}  // namespace

void LayoutForm(const cForm& form, QWidget& client, cItemMap& items) {
  auto* column = new QVBoxLayout(&client);
  cFormBuilder builder(client, *column, items);
  builder.AddRows(form.rows);
  if (form.okCancel) builder.AddOkCancel();
  FitFormToScreen(client);
}

}  // namespace velmora
