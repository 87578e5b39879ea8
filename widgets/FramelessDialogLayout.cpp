#include "FramelessDialogLayout.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "CDialogTitleBar.h"
#include "CFramelessDialog.h"

void layOutFramelessDialog(CFramelessDialog* dialog, QLayout* content, const QList<QPushButton*>& buttons)
{
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch(1);
    for (QPushButton* button : buttons)
        buttonRow->addWidget(button);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(18, 14, 18, 14);
    body->setSpacing(12);
    body->addLayout(content);
    body->addLayout(buttonRow);
    frameFramelessDialog(dialog, body);
}

void frameFramelessDialog(CFramelessDialog* dialog, QLayout* body)
{
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(dialog->titleBar());
    layout->addLayout(body, 1);
}
