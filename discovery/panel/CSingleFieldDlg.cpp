#include "CSingleFieldDlg.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "CDialogTitleBar.h"
#include "FramelessDialogLayout.h"
#include "MessageBox.h"

CSingleFieldDlg::CSingleFieldDlg(QWidget* parent) : QDialog(parent)
{
    m_titleBar = new CDialogTitleBar(this);
    m_label = new QLabel(this);
    m_lineEdit = new QLineEdit(this);
    m_lineEdit->setObjectName(QStringLiteral("lineEdit"));
    m_btnOk = new QPushButton(this);
    m_btnOk->setObjectName(QStringLiteral("btnOk"));
    m_btnCancel = new QPushButton(this);
    m_btnCancel->setObjectName(QStringLiteral("btnCancel"));

    auto* field = new QHBoxLayout;
    field->addWidget(m_label);
    field->addWidget(m_lineEdit, 1);
    layOutFramelessDialog(this, m_titleBar, field, {m_btnOk, m_btnCancel});
    setMinimumWidth(360);

    connect(m_btnOk, &QPushButton::clicked, this, &CSingleFieldDlg::on_btnOk_clicked);
    connect(m_btnCancel, &QPushButton::clicked, this, &CSingleFieldDlg::on_btnCancel_clicked);
    m_btnOk->setDefault(true);
}

void CSingleFieldDlg::initFrame()
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_btnOk->setProperty("highlight", 1);
}

void CSingleFieldDlg::setTexts(const QString& title, const QString& label)
{
    m_titleBar->setTitle(title);
    setWindowTitle(title);
    m_label->setText(label);
    m_btnOk->setText(tr("OK"));
    m_btnCancel->setText(tr("Cancel"));
}

QString CSingleFieldDlg::getEditValue() const
{
    return m_lineEdit->text();
}

QString CSingleFieldDlg::titleText() const
{
    return m_titleBar->title();
}

QString CSingleFieldDlg::labelText() const
{
    return m_label->text();
}

bool CSingleFieldDlg::refuseTooLong(const QString& message)
{
    if (m_lineEdit->text().toLocal8Bit().size() <= m_lineEdit->maxLength())
        return false;
    messageBox(message.arg(m_lineEdit->maxLength()), this, QMessageBox::Ok, QMessageBox::Critical);
    return true;
}

void CSingleFieldDlg::on_btnOk_clicked()
{
    if (validate())
        accept();
}

void CSingleFieldDlg::on_btnCancel_clicked()
{
    reject();
}

void CSingleFieldDlg::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}
