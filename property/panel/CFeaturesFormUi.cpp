#include "CFeaturesFormUi.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTextEdit>
#include <QVBoxLayout>

#include "CTextWidthGuard.h"
#include "Named.h"
#include "qttreepropertybrowser.h"

void CFeaturesFormUi::setupUi(QWidget* form)
{
    form->setObjectName("CPropertyFeaturesForm");
    auto* layout = new QVBoxLayout(form);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);

    // Level and search on one row, the page's buttons on the next, so the
    // panel stays narrow enough to leave the video area its room.
    auto* bar = new QHBoxLayout();
    cbVisibility = named(new QComboBox(form), "cbVisibility");
    cbVisibility->addItems({QString(), QString(), QString()});
    lineEditKey = named(new QLineEdit(form), "lineEditKey");
    lineEditKey->setClearButtonEnabled(true);
    bar->addWidget(cbVisibility);
    bar->addWidget(lineEditKey, 1);
    layout->addLayout(bar);
    auto* buttons = new QHBoxLayout();
    const QList<QPair<QPushButton**, const char*>> pageButtons = {
        {&btnExpand, "btnExpand"}, {&btnReset, "btnReset"}, {&btnSave, "btnSave"}, {&btnTranslate, "btnTranslate"}};
    for (const auto& button : pageButtons)
    {
        *button.first = named(new QPushButton(form), button.second);
        CTextWidthGuard::install(*button.first);
        buttons->addWidget(*button.first, 1);
    }
    btnTranslate->setCheckable(true);
    btnTranslate->setChecked(true);
    layout->addLayout(buttons);

    auto* splitter = new QSplitter(Qt::Vertical, form);
    browser = named(new QtTreePropertyBrowser(splitter), "propertyBrowser");
    browser->setHeaderVisible(false);
    textDesc = named(new QTextEdit(splitter), "textEditDesc");
    textDesc->setReadOnly(true);
    splitter->addWidget(browser);
    splitter->addWidget(textDesc);
    splitter->setStretchFactor(0, 4);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter, 1);
}

void CFeaturesFormUi::retranslateUi(bool expanded)
{
    cbVisibility->setItemText(0, tr("Beginner"));
    cbVisibility->setItemText(1, tr("Expert"));
    cbVisibility->setItemText(2, tr("Guru"));
    lineEditKey->setPlaceholderText(tr("Search features"));
    // Each button is kept as wide as its text (CTextWidthGuard); the row
    // shares its width equally, so the buttons stay in place when the text
    // toggles.
    btnExpand->setText(expanded ? tr("Collapse All") : tr("Expand All"));
    CTextWidthGuard::fit(btnExpand);
    btnReset->setText(tr("Reset"));
    btnSave->setText(tr("Save"));
    btnTranslate->setText(tr("Translate"));
    btnTranslate->setToolTip(tr("Switch between translated and raw feature names"));
    // Shown while no row is chosen, so the empty pane says what it is for.
    textDesc->setPlaceholderText(tr("Select a feature to see its description."));
}
