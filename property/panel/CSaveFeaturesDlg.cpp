#include "CSaveFeaturesDlg.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "CConfiguration.h"
#include "CDeviceManager.h"
#include "CLanguageWatcher.h"
#include "FramelessDialogLayout.h"
#include "CTavDevice.h"
#include "Named.h"
#include "Tavlog4cpp/TavLogMacros.h"
#include "Utils.h"

namespace {
const QString kSelector = QStringLiteral("UserSetSelector");
const QString kDefault = QStringLiteral("UserSetDefault");
const QString kLoad = QStringLiteral("UserSetLoad");
const QString kSave = QStringLiteral("UserSetSave");

// The dialog's rows, top to bottom: the feature and its label.
const struct
{
    const QString& feature;
    const char* label;
} kRows[] = {{kSelector, QT_TRANSLATE_NOOP("CSaveFeaturesDlg", "User Set Selector")},
             {kLoad, QT_TRANSLATE_NOOP("CSaveFeaturesDlg", "User Set Load")},
             {kSave, QT_TRANSLATE_NOOP("CSaveFeaturesDlg", "User Set Save")},
             {kDefault, QT_TRANSLATE_NOOP("CSaveFeaturesDlg", "User Set Default")}};
}

CSaveFeaturesDlg::CSaveFeaturesDlg(CTavDevicePtr device, QWidget* parent)
    : CFramelessDialog(parent), m_device(device)
{
    setObjectName(QStringLiteral("CSaveFeaturesDlg"));
    m_worker = new CFeatureControlWorker(device, this);
    m_worker->deliverTo(this, &CSaveFeaturesDlg::onStateRead, &CSaveFeaturesDlg::onWriteDone,
                        &CSaveFeaturesDlg::onExecuteDone);
    initUI();
    connect(this, &CSaveFeaturesDlg::update_receive, this, &CSaveFeaturesDlg::OnUpdateReceive, Qt::QueuedConnection);
    CDeviceManager::getInstance()->attach(this);
    readAll();
}

CSaveFeaturesDlg::~CSaveFeaturesDlg()
{
    CDeviceManager::getInstance()->detach(this);
    // A user-set command under way may take seconds: the worker finishes it
    // and goes on its own.
    m_worker->retire();
}

void CSaveFeaturesDlg::initUI()
{
    m_cbUserSetSelector = named(new QComboBox(this), "cbUserSetSelector");
    m_btnUserSetLoad = named(new QPushButton(this), "btnUserSetLoad");
    m_btnUserSetSave = named(new QPushButton(this), "btnUserSetSave");
    m_cbUserSetDefault = named(new QComboBox(this), "cbUserSetDefault");
    m_btnClose = named(new QPushButton(this), "btnClose");
    m_cbUserSetSelector->setMinimumWidth(140);
    m_cbUserSetDefault->setMinimumWidth(140);

    auto* grid = new QGridLayout();
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    QWidget* const controls[] = {m_cbUserSetSelector, m_btnUserSetLoad, m_btnUserSetSave, m_cbUserSetDefault};
    for (int row = 0; row < 4; ++row)
    {
        auto* label = new QLabel(this);
        m_labels.insert(kRows[row].feature, label);
        grid->addWidget(label, row, 0);
        grid->addWidget(controls[row], row, 1);
        // Nothing to do until the camera has answered.
        controls[row]->setEnabled(false);
    }
    layOutFramelessDialog(this, grid, {m_btnClose});

    // User choices only (activated); the controls are filled with signals blocked.
    connect(m_cbUserSetSelector, QOverload<int>::of(&QComboBox::activated), this,
            &CSaveFeaturesDlg::on_cbUserSetSelector_currentIndexChanged);
    connect(m_cbUserSetDefault, QOverload<int>::of(&QComboBox::activated), this,
            &CSaveFeaturesDlg::on_cbUserSetDefault_currentIndexChanged);
    connect(m_btnUserSetLoad, &QPushButton::clicked, this, &CSaveFeaturesDlg::on_btnUserSetLoad_clicked);
    connect(m_btnUserSetSave, &QPushButton::clicked, this, &CSaveFeaturesDlg::on_btnUserSetSave_clicked);
    connect(m_btnClose, &QPushButton::clicked, this, &QDialog::accept);
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
    retranslateUi();
}

void CSaveFeaturesDlg::retranslateUi()
{
    setTitle(tr("Save Features"));
    for (const auto& row : kRows)
        m_labels.value(row.feature)->setText(tr(row.label));
    m_btnUserSetLoad->setText(tr("Execute"));
    m_btnUserSetSave->setText(tr("Execute"));
    m_btnClose->setText(tr("Close"));
    if (m_selectorState.valid)
        showCombo(m_cbUserSetSelector, m_selectorState);
    if (m_defaultState.valid)
        showCombo(m_cbUserSetDefault, m_defaultState);
}

QString CSaveFeaturesDlg::transParam(const QString& entry)
{
    if (entry == QLatin1String("Default"))
        return tr("Default");
    if (entry == QLatin1String("UserSet1"))
        return tr("UserSet1");
    if (entry == QLatin1String("UserSet2"))
        return tr("UserSet2");
    return entry;
}

QString CSaveFeaturesDlg::retransParam(const QString& text)
{
    for (const char* entry : {"Default", "UserSet1", "UserSet2"})
        if (text == transParam(QLatin1String(entry)))
            return QLatin1String(entry);
    return text;
}

void CSaveFeaturesDlg::readAll()
{
    m_worker->requestRead({kSelector, kLoad, kSave, kDefault});
}

void CSaveFeaturesDlg::initParam(QString name)
{
    m_worker->requestRead({name});
}

bool CSaveFeaturesDlg::shownAtLevel(const SFeatureState& state) const
{
    return isVisibilityShown(unsigned(state.visibility), unsigned(CConfiguration::getInstance()->deviceCtrlVisibility));
}

void CSaveFeaturesDlg::showCombo(QComboBox* combo, const SFeatureState& state)
{
    QLabel* label = m_labels.value(state.name);
    const QSignalBlocker block(combo);
    combo->clear();
    const bool visible = !state.valid || shownAtLevel(state);
    combo->setVisible(visible);
    label->setVisible(visible);
    if (!state.valid || !state.readable)
    {
        combo->setEnabled(false);
        return;
    }
    QStringList entries = state.symbols;
    if (!state.symbol.isEmpty() && !entries.contains(state.symbol))
        entries.append(state.symbol);
    for (const QString& entry : entries)
        combo->addItem(transParam(entry), entry);
    combo->setCurrentIndex(combo->findData(state.symbol));
    combo->setEnabled(state.writeable);
}

void CSaveFeaturesDlg::showButton(QPushButton* button, const SFeatureState& state)
{
    QLabel* label = m_labels.value(state.name);
    const bool visible = !state.valid || shownAtLevel(state);
    button->setVisible(visible);
    label->setVisible(visible);
    button->setEnabled(state.valid && state.available && state.writeable);
}

void CSaveFeaturesDlg::onStateRead(SFeatureState state)
{
    if (state.name == kSelector)
    {
        m_selectorState = state;
        showCombo(m_cbUserSetSelector, state);
    }
    else if (state.name == kDefault)
    {
        m_defaultState = state;
        showCombo(m_cbUserSetDefault, state);
    }
    else if (state.name == kLoad)
    {
        showButton(m_btnUserSetLoad, state);
    }
    else if (state.name == kSave)
    {
        showButton(m_btnUserSetSave, state);
    }
    emit paramShown(state.name);
}

void CSaveFeaturesDlg::on_cbUserSetSelector_currentIndexChanged(int index)
{
    if (index < 0)
        return;
    m_requestedSelector = retransParam(m_cbUserSetSelector->itemText(index));
    m_worker->requestWrite(kSelector, m_requestedSelector);
}

void CSaveFeaturesDlg::on_cbUserSetDefault_currentIndexChanged(int index)
{
    if (index < 0)
        return;
    m_requestedDefault = retransParam(m_cbUserSetDefault->itemText(index));
    m_worker->requestWrite(kDefault, m_requestedDefault);
}

void CSaveFeaturesDlg::on_btnUserSetLoad_clicked()
{
    m_worker->requestExecute(kLoad);
}

void CSaveFeaturesDlg::on_btnUserSetSave_clicked()
{
    m_worker->requestExecute(kSave);
}

void CSaveFeaturesDlg::onWriteDone(QString name, bool ok, QString, SFeatureState state)
{
    onStateRead(state);
    if (!ok)
    {
        // The value asked for, not the camera's value the combo shows again.
        const QString value = name == kSelector ? m_requestedSelector : m_requestedDefault;
        const QString text = name == kSelector
                                 ? tr("set UserSetSelector property value %1 fail, please check value.")
                                 : tr("set UserSetDefault property value %1 fail, please check value.");
        showFailure(m_messageHandler, text.arg(value), this);
    }
    // The selector decides whether the commands are available.
    readAll();
    emit actionFinished(name, ok);
}

void CSaveFeaturesDlg::onExecuteDone(QString name, bool ok, QString)
{
    if (!ok)
        showFailure(m_messageHandler, name == kLoad ? tr("execute UserSetLoad fail.") : tr("execute UserSetSave fail."),
                    this);
    readAll();
    emit actionFinished(name, ok);
}

void CSaveFeaturesDlg::Update(CTavMessagePtr msg)
{
    emit update_receive(msg);
}

void CSaveFeaturesDlg::OnUpdateReceive(CTavMessagePtr msg)
{
    if (!msg || !msg->device || msg->device.get() != m_device.get())
        return;
    if (msg->type == MSG_PARAM_UPDATE)
    {
        for (const auto& n : msg->paramUpdateArg.paramNames)
        {
            const QString name = QString::fromUtf8(n.c_str());
            if (name == kSelector || name == kDefault || name == kLoad || name == kSave)
                initParam(name);
        }
    }
    else if (msg->type == MSG_DEVICE_DISCONNECTING || msg->type == MSG_DEVICE_OFFLINE ||
             msg->type == MSG_DEVICE_DISCONNECTED)
    {
        // Nothing to manage without the camera.
        reject();
    }
}
