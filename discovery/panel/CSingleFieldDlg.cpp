#include "CSingleFieldDlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "CLanguageWatcher.h"
#include "FramelessDialogLayout.h"
#include "MessageBox.h"
#include "Named.h"

CSingleFieldDlg::CSingleFieldDlg(QWidget* parent) : CFramelessDialog(parent)
{
    m_label = new QLabel(this);
    m_lineEdit = named(new QLineEdit(this), "lineEdit");
    m_btnOk = named(new QPushButton(this), "btnOk");
    m_btnCancel = named(new QPushButton(this), "btnCancel");

    auto* field = new QHBoxLayout;
    field->addWidget(m_label);
    field->addWidget(m_lineEdit, 1);
    layOutFramelessDialog(this, field, {m_btnOk, m_btnCancel});
    setMinimumWidth(360);

    connect(m_btnOk, &QPushButton::clicked, this, &CSingleFieldDlg::on_btnOk_clicked);
    connect(m_btnCancel, &QPushButton::clicked, this, &CSingleFieldDlg::on_btnCancel_clicked);
    m_btnOk->setDefault(true);
    CLanguageWatcher::install(this, [this]() { retranslateUi(); });
}

void CSingleFieldDlg::initFrame()
{
    m_btnOk->setProperty("highlight", 1);
}

void CSingleFieldDlg::setTexts(const QString& title, const QString& label)
{
    setTitle(title);
    m_label->setText(label);
    m_btnOk->setText(tr("OK"));
    m_btnCancel->setText(tr("Cancel"));
}

QString CSingleFieldDlg::getEditValue() const
{
    return m_lineEdit->text();
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
