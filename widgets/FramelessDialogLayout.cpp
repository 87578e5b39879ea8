#include "FramelessDialogLayout.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "CDialogTitleBar.h"

void layOutFramelessDialog(QDialog* dialog, CDialogTitleBar* titleBar, QLayout* content,
                           const QList<QPushButton*>& buttons)
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
    frameFramelessDialog(dialog, titleBar, body);
}

void frameFramelessDialog(QDialog* dialog, CDialogTitleBar* titleBar, QLayout* body)
{
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(titleBar);
    layout->addLayout(body, 1);
}
