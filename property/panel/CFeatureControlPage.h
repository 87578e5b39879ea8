#pragma once
// A page of plain controls bound to camera features by name: a number
// (slider and spin box, integer or decimal as the camera says), an
// enumeration (combo box), a boolean (check box) or a command (button).
// Each control follows the camera: its range, increment and entries, hidden
// when the camera lacks the feature, disabled while it is not writeable.
// Reads and writes run on the page's CFeatureControlWorker; a refused value
// is shown with the camera's reason and the control returns to the camera's
// value. The page listens to the bus for parameter updates and stream
// changes of its device.
#include <QHash>
#include <QList>
#include <QWidget>

#include "CFeatureControlWorker.h"
#include "CObserver.h"
#include "CTavMessage.h"
#include "MessageBox.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class CSlider;
class CSpinBox;
class CDoubleSpinBox;

class CFeatureControlPage : public QWidget, public CObserver
{
    Q_OBJECT
public:
    ~CFeatureControlPage() override;

    CTavDevicePtr device() const { return m_device; }
    void Update(CTavMessagePtr msg) override;

    // Reads every control's feature again.
    void refresh();
    void retranslateUi();

    // Shows a failure to the user; the default is the application's message box.
    void setMessageHandler(const FailureHandler& handler) { m_messageHandler = handler; }
    CFeatureControlWorker* worker() const { return m_worker; }
    QStringList featureNames() const;

    // For tests and the screenshot: the widgets of a feature's row.
    QWidget* rowWidget(const QString& name) const { return widget(name, &SRow::row); }
    QLabel* rowLabel(const QString& name) const { return widget(name, &SRow::labelWidget); }
    CSlider* slider(const QString& name) const { return widget(name, &SRow::slider); }
    CSpinBox* intSpinBox(const QString& name) const { return widget(name, &SRow::spin); }
    CDoubleSpinBox* floatSpinBox(const QString& name) const { return widget(name, &SRow::dspin); }
    QComboBox* comboBox(const QString& name) const { return widget(name, &SRow::combo); }
    QCheckBox* checkBox(const QString& name) const { return widget(name, &SRow::check); }
    QPushButton* commandButton(const QString& name) const { return widget(name, &SRow::button); }
    // The last state read for the feature (valid false before the first read).
    SFeatureState state(const QString& name) const;

    // Asks for the value to be written, as the control would after an edit.
    void writeValue(const QString& name, const QVariant& value);

signals:
    void update_receive(CTavMessagePtr msg);
    // A feature's state arrived from the camera and the controls follow it.
    void stateApplied(QString name);
    // A write or command came back; ok false when the camera refused it.
    void writeFinished(QString name, bool ok);

protected:
    enum ERowKind
    {
        rowSection,   // a titled group of the rows that follow
        rowNumber,
        rowEnum,
        rowBool,
        rowCommand
    };

    // One line of the page: a feature's row, or a section title (no feature).
    struct SLine
    {
        ERowKind kind;
        const char* label;   // English, marked with QT_TRANSLATE_NOOP in the page's context
        const char* feature;
    };

    // context: the translation context of the labels, the page's class name
    // (also its object name). The page reads its features once it exists.
    CFeatureControlPage(CTavDevicePtr device, const char* context, std::initializer_list<SLine> lines,
                        QWidget* parent);

    // Extra widgets below the rows (the image-format page's ROI buttons).
    QVBoxLayout* bottomLayout() const { return m_bottom; }
    // Called before a write; returning false refuses it with the message shown.
    virtual bool mayWrite(const QString& name, QString& refusal);
    virtual void onDeviceMessage(const CTavMessagePtr& msg);
    virtual void retranslateExtra() {}
    void showMessage(const QString& text) { showFailure(m_messageHandler, text, this); }
    void showEvent(QShowEvent* event) override;

    CTavDevicePtr m_device;
    CFeatureControlWorker* m_worker = nullptr;

private slots:
    void OnUpdateReceive(CTavMessagePtr msg);
    void onStateRead(SFeatureState state);
    void onWriteDone(QString name, bool ok, QString error, SFeatureState state);
    void onExecuteDone(QString name, bool ok, QString error);

private:
    static const int kNumberBoxMinWidth = 80;

    void addSection(const char* title);
    void alignNumberBoxes();
    void addRow(const QString& name, const char* label, ERowKind kind);

    struct SRow
    {
        QString name;
        const char* label = nullptr;
        ERowKind kind = rowNumber;
        QWidget* row = nullptr;
        QLabel* labelWidget = nullptr;
        CSlider* slider = nullptr;
        CSpinBox* spin = nullptr;
        CDoubleSpinBox* dspin = nullptr;
        QComboBox* combo = nullptr;
        QCheckBox* check = nullptr;
        QPushButton* button = nullptr;
        SFeatureState state;
    };
    struct SSection
    {
        const char* title = nullptr;
        QLabel* label = nullptr;
    };

    void applyState(SRow& row, const SFeatureState& state);
    void fillCombo(SRow& row);
    void onNumberEdited(SRow& row, double value);
    void onSliderMoved(SRow& row, int position);
    SRow* findRow(const QString& name) const;
    template <class Widget>
    Widget* widget(const QString& name, Widget* SRow::*member) const
    {
        const SRow* r = findRow(name);
        return r ? r->*member : nullptr;
    }

    const char* m_context;
    QList<SRow*> m_rows;
    QList<SSection> m_sections;
    QGridLayout* m_grid = nullptr;
    QVBoxLayout* m_bottom = nullptr;
    FailureHandler m_messageHandler;
};
