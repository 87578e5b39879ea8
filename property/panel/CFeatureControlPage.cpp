#include "CFeatureControlPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <cmath>
#include <limits>

#include "CDeviceManager.h"
#include "CDoubleSpinBox.h"
#include "CFeatureTreeBuilder.h"
#include "CLanguageWatcher.h"
#include "Named.h"
#include "CSlider.h"
#include "CSpinBox.h"
#include "CTavDevice.h"
#include "Utils.h"

namespace {
// A decimal feature's slider runs over this many steps between its limits.
const int kFloatSliderSteps = 1000;

// Integer value moved onto the feature's increment grid, inside its range.
qint64 snapToGrid(qint64 value, const SFeatureState& s)
{
    value = qBound(s.intMin, value, s.intMax);
    if (s.intInc > 1)
        value = s.intMin + ((value - s.intMin) / s.intInc) * s.intInc;
    return value;
}
}

CFeatureControlPage::CFeatureControlPage(CTavDevicePtr device, const char* context,
                                         std::initializer_list<SLine> lines, QWidget* parent)
    : QWidget(parent), m_device(device), m_context(context)
{
    setObjectName(QLatin1String(context));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    outer->addWidget(scroll);
    auto* body = new QWidget(scroll);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(8, 8, 8, 8);
    m_grid = new QGridLayout();
    m_grid->setColumnStretch(1, 1);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);
    column->addLayout(m_grid);
    m_bottom = new QVBoxLayout();
    column->addLayout(m_bottom);
    column->addStretch(1);
    scroll->setWidget(body);

    m_worker = new CFeatureControlWorker(device, this);
    m_worker->deliverTo(this, &CFeatureControlPage::onStateRead, &CFeatureControlPage::onWriteDone,
                        &CFeatureControlPage::onExecuteDone);

    for (const SLine& line : lines)
    {
        if (line.kind == rowSection)
            addSection(line.label);
        else
            addRow(QLatin1String(line.feature), line.label, line.kind);
    }
    connect(this, &CFeatureControlPage::update_receive, this, &CFeatureControlPage::OnUpdateReceive,
            Qt::QueuedConnection);
    CDeviceManager::getInstance()->attach(this);
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    refresh();
}

CFeatureControlPage::~CFeatureControlPage()
{
    CDeviceManager::getInstance()->detach(this);
    // A write or read under way finishes on the worker, which then goes on
    // its own: closing the page never waits for the camera.
    m_worker->retire();
    qDeleteAll(m_rows);
}

void CFeatureControlPage::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CFeatureControlPage::addSection(const char* title)
{
    auto* label = named(new QLabel(this), "sectionTitle");
    QFont f = label->font();
    f.setBold(true);
    label->setFont(f);
    m_grid->addWidget(label, m_grid->rowCount(), 0, 1, 2);
    m_sections.append({title, label});
    label->setText(QCoreApplication::translate(m_context, title));
}

void CFeatureControlPage::addRow(const QString& name, const char* label, ERowKind kind)
{
    auto* row = new SRow;
    row->name = name;
    row->label = label;
    row->kind = kind;
    row->labelWidget = new QLabel(this);
    row->labelWidget->setObjectName(QStringLiteral("label_%1").arg(name));
    row->row = new QWidget(this);
    row->row->setObjectName(QStringLiteral("row_%1").arg(name));
    auto* h = new QHBoxLayout(row->row);
    h->setContentsMargins(0, 0, 0, 0);
    switch (kind)
    {
    case rowNumber:
        row->slider = new CSlider(Qt::Horizontal, row->row);
        row->slider->setMinimumWidth(100);
        row->spin = new CSpinBox(row->row);
        row->dspin = new CDoubleSpinBox(row->row);
        row->spin->setMinimumWidth(kNumberBoxMinWidth);
        row->dspin->setMinimumWidth(kNumberBoxMinWidth);
        row->dspin->hide();
        h->addWidget(row->slider, 1);
        h->addWidget(row->spin);
        h->addWidget(row->dspin);
        connect(row->slider, &QSlider::valueChanged, this, [this, row](int v) { onSliderMoved(*row, v); });
        connect(row->slider, &QSlider::sliderReleased, this,
                [this, row]() { onSliderMoved(*row, row->slider->value()); });
        connect(row->spin, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this, row](int v) { onNumberEdited(*row, v); });
        connect(row->dspin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, row](double v) { onNumberEdited(*row, v); });
        break;
    case rowEnum:
        row->combo = new QComboBox(row->row);
        row->combo->setMinimumWidth(60);
        h->addWidget(row->combo, 1);
        connect(row->combo, QOverload<int>::of(&QComboBox::activated), this, [this, row](int index) {
            writeValue(row->name, row->combo->itemData(index).toString());
        });
        break;
    case rowBool:
        row->check = new QCheckBox(row->row);
        h->addWidget(row->check, 1);
        connect(row->check, &QCheckBox::clicked, this, [this, row](bool on) { writeValue(row->name, on); });
        break;
    case rowSection:
        break;
    case rowCommand:
        row->button = new QPushButton(row->row);
        h->addWidget(row->button);
        h->addStretch(1);
        connect(row->button, &QPushButton::clicked, this, [this, row]() {
            QString refusal;
            if (!mayWrite(row->name, refusal))
            {
                showMessage(refusal);
                return;
            }
            m_worker->requestExecute(row->name);
        });
        break;
    }
    const int r = m_grid->rowCount();
    m_grid->addWidget(row->labelWidget, r, 0);
    m_grid->addWidget(row->row, r, 1);
    // Until the camera has answered the control shows nothing it cannot do.
    row->row->setEnabled(false);
    m_rows.append(row);
    row->labelWidget->setText(QCoreApplication::translate(m_context, label));
    if (row->button)
        row->button->setText(tr("Execute"));
}

QStringList CFeatureControlPage::featureNames() const
{
    QStringList names;
    for (const SRow* row : m_rows)
        names.append(row->name);
    return names;
}

void CFeatureControlPage::refresh()
{
    m_worker->requestRead(featureNames());
}

CFeatureControlPage::SRow* CFeatureControlPage::findRow(const QString& name) const
{
    for (SRow* row : m_rows)
        if (row->name == name)
            return row;
    return nullptr;
}

SFeatureState CFeatureControlPage::state(const QString& name) const
{
    const SRow* r = findRow(name);
    return r ? r->state : SFeatureState();
}

void CFeatureControlPage::fillCombo(SRow& row)
{
    QSignalBlocker block(row.combo);
    row.combo->clear();
    QStringList symbols = row.state.symbols;
    // The current entry is shown even when it is no longer offered.
    if (!row.state.symbol.isEmpty() && !symbols.contains(row.state.symbol))
        symbols.append(row.state.symbol);
    for (const QString& symbol : symbols)
        row.combo->addItem(CFeatureTreeBuilder::valueText(row.name, symbol), symbol);
    row.combo->setCurrentIndex(row.combo->findData(row.state.symbol));
}

void CFeatureControlPage::applyState(SRow& row, const SFeatureState& s)
{
    row.state = s;
    const bool shown = s.valid;
    row.row->setVisible(shown);
    row.labelWidget->setVisible(shown);
    row.row->setEnabled(s.writeable || (row.kind == rowCommand && s.available));
    row.row->setToolTip(s.available ? QString() : tr("Not available now"));
    if (!shown)
        return;
    switch (row.kind)
    {
    case rowNumber: {
        const QSignalBlocker b1(row.slider), b2(row.spin), b3(row.dspin);
        if (s.isFloat())
        {
            row.spin->hide();
            row.dspin->show();
            row.dspin->setDecimals(s.floatPrecision);
            row.dspin->setRange(s.floatMin, s.floatMax);
            row.dspin->setSingleStep(s.floatInc > 0 ? s.floatInc : std::pow(10.0, -s.floatPrecision));
            row.dspin->setSuffix(s.unit.isEmpty() ? QString() : QStringLiteral(" ") + s.unit);
            row.dspin->setValue(s.floatValue);
            row.slider->setRange(0, kFloatSliderSteps);
            const double span = s.floatMax - s.floatMin;
            row.slider->setValue(span > 0 ? int(std::lround((s.floatValue - s.floatMin) / span * kFloatSliderSteps)) : 0);
        }
        else
        {
            row.dspin->hide();
            row.spin->show();
            const auto clampInt = [](qint64 v) {
                return int(qBound<qint64>(std::numeric_limits<int>::min(), v, std::numeric_limits<int>::max()));
            };
            row.spin->setRange(clampInt(s.intMin), clampInt(s.intMax));
            row.spin->setSingleStep(clampInt(s.intInc));
            row.spin->setSuffix(s.unit.isEmpty() ? QString() : QStringLiteral(" ") + s.unit);
            row.spin->setValue(clampInt(s.intValue));
            row.slider->setRange(clampInt(s.intMin), clampInt(s.intMax));
            row.slider->setSingleStep(clampInt(s.intInc));
            row.slider->setPageStep(clampInt(qMax<qint64>(s.intInc, (s.intMax - s.intMin) / 10)));
            row.slider->setValue(clampInt(s.intValue));
        }
        break;
    }
    case rowEnum:
        fillCombo(row);
        break;
    case rowBool: {
        const QSignalBlocker b(row.check);
        row.check->setChecked(s.boolValue);
        break;
    }
    case rowSection:
    case rowCommand:
        break;
    }
}

void CFeatureControlPage::onSliderMoved(SRow& row, int position)
{
    const SFeatureState& s = row.state;
    if (s.isFloat())
    {
        const double value = s.floatMin + (s.floatMax - s.floatMin) * position / kFloatSliderSteps;
        {
            const QSignalBlocker b(row.dspin);
            row.dspin->setValue(value);
        }
        if (!row.slider->isSliderDown())
            writeValue(row.name, value);
    }
    else
    {
        {
            const QSignalBlocker b(row.spin);
            row.spin->setValue(position);
        }
        if (!row.slider->isSliderDown())
            writeValue(row.name, qint64(position));
    }
}

void CFeatureControlPage::onNumberEdited(SRow& row, double value)
{
    if (row.state.isFloat())
        writeValue(row.name, value);
    else
        writeValue(row.name, qint64(std::llround(value)));
}

bool CFeatureControlPage::mayWrite(const QString&, QString&)
{
    return true;
}

void CFeatureControlPage::writeValue(const QString& name, const QVariant& value)
{
    SRow* row = findRow(name);
    if (!row)
        return;
    QString refusal;
    if (!mayWrite(name, refusal))
    {
        showMessage(refusal);
        applyState(*row, row->state);
        return;
    }
    QVariant v = value;
    if (row->state.isInt())
    {
        const qint64 snapped = snapToGrid(value.toLongLong(), row->state);
        if (snapped != value.toLongLong())
        {
            // Show the value that is going to be written.
            SFeatureState shown = row->state;
            shown.intValue = snapped;
            applyState(*row, shown);
            row->state.intValue = snapped;
        }
        v = snapped;
    }
    m_worker->requestWrite(name, v);
}

void CFeatureControlPage::onStateRead(SFeatureState s)
{
    if (SRow* row = findRow(s.name))
    {
        applyState(*row, s);
        alignNumberBoxes();
        emit stateApplied(s.name);
    }
}

void CFeatureControlPage::alignNumberBoxes()
{
    // Every number box of the page as wide as the widest (their widths follow
    // range and unit), so the sliders beside them start and end in line.
    int width = kNumberBoxMinWidth;
    for (const SRow* row : m_rows)
        if (row->kind == rowNumber)
            width = qMax(width, qMax(row->spin->sizeHint().width(), row->dspin->sizeHint().width()));
    for (SRow* row : m_rows)
        if (row->kind == rowNumber)
        {
            row->spin->setMinimumWidth(width);
            row->dspin->setMinimumWidth(width);
        }
}

void CFeatureControlPage::onWriteDone(QString name, bool ok, QString error, SFeatureState s)
{
    if (SRow* row = findRow(name))
    {
        applyState(*row, s);
        alignNumberBoxes();
    }
    if (!ok)
        showMessage(error.isEmpty() ? tr("Setting %1 failed.").arg(name) : error);
    // A value may change the range or availability of the others.
    refresh();
    emit writeFinished(name, ok);
}

void CFeatureControlPage::onExecuteDone(QString name, bool ok, QString error)
{
    if (!ok)
        showMessage(error.isEmpty() ? tr("Executing %1 failed.").arg(name) : error);
    refresh();
    emit writeFinished(name, ok);
}

void CFeatureControlPage::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device || msg->device.get() != m_device.get())
        return;
    switch (msg->type)
    {
    case MSG_PARAM_UPDATE: {
        QStringList names;
        for (const auto& n : msg->paramUpdateArg.paramNames)
        {
            const QString name = QString::fromUtf8(n.c_str());
            if (findRow(name))
                names.append(name);
        }
        if (!names.isEmpty())
            m_worker->requestRead(names);
        break;
    }
    case MSG_DEVICE_CONNECTED:
    case MSG_STREAM_OPENED:
    case MSG_STREAM_CLOSED:
        refresh();
        break;
    default:
        break;
    }
    onDeviceMessage(msg);
}

void CFeatureControlPage::onDeviceMessage(const CTavMessagePtr&) {}

void CFeatureControlPage::retranslateUi()
{
    for (const SSection& s : m_sections)
        s.label->setText(QCoreApplication::translate(m_context, s.title));
    for (SRow* row : m_rows)
    {
        row->labelWidget->setText(QCoreApplication::translate(m_context, row->label));
        if (row->button)
            row->button->setText(tr("Execute"));
        if (row->combo)
            fillCombo(*row);
        row->row->setToolTip(row->state.available || !row->state.valid ? QString() : tr("Not available now"));
    }
    retranslateExtra();
}

void CFeatureControlPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}
