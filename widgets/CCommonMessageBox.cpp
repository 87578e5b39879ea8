#include "CCommonMessageBox.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QPixmap>
#include <QUrl>
#include <QVBoxLayout>

#include "Named.h"

CCommonMessageBox::CCommonMessageBox(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("CCommonMessageBox"));
    setWindowTitle(QStringLiteral("Lumidor"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setModal(true);

    m_iconLabel = named(new QLabel(this), "messageIcon");
    m_iconLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    m_iconLabel->hide();

    m_messageLabel = named(new QLabel(this), "messageText");
    m_messageLabel->setWordWrap(true);
    m_messageLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_messageLabel->setMinimumWidth(280);

    m_fileRow = named(new QWidget(this), "messageFileRow");
    m_fileLabel = named(new QLabel(m_fileRow), "messageFile");
    m_fileLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_openFileButton = named(new QPushButton(m_fileRow), "btnOpenFile");
    m_openFileButton->setAutoDefault(false);
    auto* fileLayout = new QHBoxLayout(m_fileRow);
    fileLayout->setContentsMargins(0, 0, 0, 0);
    fileLayout->addWidget(m_fileLabel, 1);
    fileLayout->addWidget(m_openFileButton);
    m_fileRow->hide();
    connect(m_openFileButton, &QPushButton::clicked, this, &CCommonMessageBox::onOpenFileClicked);

    m_buttonBox = new QDialogButtonBox(this);
    m_buttonBox->setCenterButtons(false);
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &CCommonMessageBox::onButtonClicked);

    auto* top = new QHBoxLayout;
    top->setSpacing(14);
    top->addWidget(m_iconLabel);
    top->addWidget(m_messageLabel, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 12);
    layout->setSpacing(12);
    layout->addLayout(top, 1);
    layout->addWidget(m_fileRow);
    layout->addWidget(m_buttonBox);

    setButtons(QMessageBox::Ok);
    retranslate();
}

void CCommonMessageBox::setMessage(const QString& text)
{
    m_messageLabel->setText(text);
}

QString CCommonMessageBox::message() const
{
    return m_messageLabel->text();
}

void CCommonMessageBox::setButtons(QMessageBox::StandardButtons buttons)
{
    if (buttons == QMessageBox::NoButton)
        buttons = QMessageBox::Ok;
    m_buttons = buttons;
    // QDialogButtonBox and QMessageBox share the values of their standard buttons.
    m_buttonBox->setStandardButtons(QDialogButtonBox::StandardButtons(int(buttons)));
    const QList<QAbstractButton*> list = m_buttonBox->buttons();
    for (QAbstractButton* b : list) {
        if (auto* push = qobject_cast<QPushButton*>(b)) {
            const int role = m_buttonBox->buttonRole(b);
            push->setDefault(role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole);
        }
    }
    retranslate();
}

namespace {

// Picture and window title of each icon the box can show.
struct IconLook
{
    QMessageBox::Icon icon;
    const char* pixmap;
    const char* title;
};

const IconLook kIconLooks[] = {
    {QMessageBox::Information, ":/Pic/Icon_Message_Information.png", QT_TRANSLATE_NOOP("CCommonMessageBox", "Information")},
    {QMessageBox::Warning, ":/Pic/Icon_Message_Warning.png", QT_TRANSLATE_NOOP("CCommonMessageBox", "Warning")},
    {QMessageBox::Critical, ":/Pic/Icon_Message_Error.png", QT_TRANSLATE_NOOP("CCommonMessageBox", "Error")},
    {QMessageBox::Question, ":/Pic/Icon_Message_Question.png", QT_TRANSLATE_NOOP("CCommonMessageBox", "Question")},
};

const IconLook* lookOf(QMessageBox::Icon icon)
{
    for (const IconLook& look : kIconLooks) {
        if (look.icon == icon)
            return &look;
    }
    return nullptr;
}

} // namespace

void CCommonMessageBox::setIcon(QMessageBox::Icon icon)
{
    m_icon = icon;
    retranslate();
    const IconLook* look = lookOf(icon);
    if (!look) {
        m_iconLabel->clear();
        m_iconLabel->hide();
        return;
    }
    m_iconLabel->setPixmap(QPixmap(QLatin1String(look->pixmap)));
    m_iconLabel->show();
}

QString CCommonMessageBox::buttonText(QMessageBox::StandardButton which) const
{
    switch (which) {
    case QMessageBox::Ok: return tr("OK");
    case QMessageBox::Cancel: return tr("Cancel");
    case QMessageBox::Yes: return tr("Yes");
    case QMessageBox::No: return tr("No");
    case QMessageBox::Close: return tr("Close");
    case QMessageBox::Save: return tr("Save");
    case QMessageBox::Discard: return tr("Discard");
    case QMessageBox::Apply: return tr("Apply");
    case QMessageBox::Retry: return tr("Retry");
    case QMessageBox::Ignore: return tr("Ignore");
    case QMessageBox::Abort: return tr("Abort");
    default: return QString();
    }
}

void CCommonMessageBox::retranslate()
{
    const IconLook* look = lookOf(m_icon);
    setWindowTitle(look ? tr(look->title) : QStringLiteral("Lumidor"));
    m_openFileButton->setText(tr("Open file"));
    for (QAbstractButton* b : m_buttonBox->buttons()) {
        const auto which = QMessageBox::StandardButton(int(m_buttonBox->standardButton(b)));
        const QString text = buttonText(which);
        if (!text.isEmpty())
            b->setText(text);
    }
}

bool CCommonMessageBox::event(QEvent* event)
{
    // The button box resets its standard texts when it gets the event, which
    // happens after ours; so ours are set once the children are done.
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return handled;
}

void CCommonMessageBox::setFilePath(const QString& path)
{
    m_filePath = path;
    m_fileLabel->setText(path.isEmpty() ? QString() : QFileInfo(path).fileName());
    m_fileLabel->setToolTip(path);
    m_fileRow->setVisible(!path.isEmpty());
}

QPushButton* CCommonMessageBox::button(QMessageBox::StandardButton which) const
{
    return m_buttonBox->button(QDialogButtonBox::StandardButton(int(which)));
}

void CCommonMessageBox::onButtonClicked(QAbstractButton* button)
{
    done(int(m_buttonBox->standardButton(button)));
}

void CCommonMessageBox::onOpenFileClicked()
{
    if (!m_filePath.isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_filePath).absoluteFilePath()));
}

void CCommonMessageBox::reject()
{
    if (m_buttons.testFlag(QMessageBox::Cancel))
        done(QMessageBox::Cancel);
    else if (m_buttons.testFlag(QMessageBox::No))
        done(QMessageBox::No);
    else if (m_buttonBox->buttons().size() == 1)
        done(int(m_buttonBox->standardButton(m_buttonBox->buttons().first())));
    else
        done(QMessageBox::NoButton);
}
