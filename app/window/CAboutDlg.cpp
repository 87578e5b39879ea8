#include "CAboutDlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "CLanguageWatcher.h"
#include "FramelessDialogLayout.h"
#include "Named.h"
#include "Vorlen/GenICam/CSystem.h"

#ifndef LUMIDOR_VERSION
#define LUMIDOR_VERSION "0.0.0"
#endif

CAboutDlg::CAboutDlg(QWidget* parent)
    : CFramelessDialog(parent)
{
    setObjectName(QStringLiteral("CAboutDlg"));
    m_iconLabel = new QLabel(this);
    m_iconLabel->setPixmap(QIcon(QStringLiteral(":/Pic/Lumidor.png")).pixmap(72, 72));
    m_iconLabel->setAlignment(Qt::AlignTop);
    m_textLabel = named(new QLabel(this), "aboutText");
    m_textLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_textLabel->setMinimumWidth(300);
    m_okButton = new QPushButton(this);
    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);

    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(m_iconLabel);
    top->addWidget(m_textLabel, 1);
    layOutFramelessDialog(this, top, {m_okButton});
    CLanguageWatcher::install(this, [this]() { retranslate(); });
    retranslate();
}

QString CAboutDlg::programVersion()
{
    return QStringLiteral(LUMIDOR_VERSION);
}

QString CAboutDlg::cameraLayerVersion()
{
    return QString::fromLocal8Bit(Vorlen::GenICam::CInternalSystem::getInstance().getVersion().c_str());
}

QString CAboutDlg::text() const
{
    return m_textLabel->text();
}

void CAboutDlg::retranslate()
{
    setTitle(tr("About Lumidor"));
    m_okButton->setText(tr("OK"));
    m_textLabel->setText(QStringLiteral("<p><b>Lumidor</b> %1</p><p>%2</p><p>%3</p>")
                             .arg(programVersion().toHtmlEscaped(),
                                  tr("Viewer for GigE Vision and USB3 Vision cameras.").toHtmlEscaped(),
                                  tr("Camera layer version: %1").arg(cameraLayerVersion()).toHtmlEscaped()));
}
