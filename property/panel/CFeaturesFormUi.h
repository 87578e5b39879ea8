#pragma once
// The widgets of a features page and their texts, laid out the way a
// designer form would be: the level box and the search field on one row,
// the page's buttons on the next, then the tree above the description pane.
// Texts are translated in the page's own context (CPropertyFeaturesForm).
#include <QCoreApplication>

class QComboBox;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QWidget;
class QtTreePropertyBrowser;

class CFeaturesFormUi
{
    Q_DECLARE_TR_FUNCTIONS(CPropertyFeaturesForm)
public:
    void setupUi(QWidget* form);
    // expanded: the expand button offers to collapse.
    void retranslateUi(bool expanded);

    QComboBox* cbVisibility = nullptr;
    QLineEdit* lineEditKey = nullptr;
    QPushButton* btnExpand = nullptr;
    QPushButton* btnReset = nullptr;
    QPushButton* btnSave = nullptr;
    QPushButton* btnTranslate = nullptr;
    QtTreePropertyBrowser* browser = nullptr;
    QTextEdit* textDesc = nullptr;
};
