#pragma once
// Which rows of a feature tree the browser shows, and how far they are
// open: the top-level rows, the visibility level, the search key, and
// expanding or collapsing. Searching opens every row; an empty key leaves
// the top-level rows open and everything below them closed.
#include <QString>

class QtBrowserItem;
class QtProperty;
class QtTreePropertyBrowser;

class CFeatureTreeNavigator
{
public:
    explicit CFeatureTreeNavigator(QtTreePropertyBrowser* browser) : m_browser(browser) {}

    // Puts the children of root into the browser as top-level rows (once)
    // and shows the rows up to the level (0 Beginner, 1 Expert, 2 Guru).
    void show(QtProperty* root, int level);
    // Shows only the rows whose name holds the key, with their categories.
    void setKey(const QString& key);

    void expandChildren(QtBrowserItem* item);
    void collapseChildren(QtBrowserItem* item);
    void expandAll();
    void collapseAll();
    bool isExpanded() const { return m_bExpanded; }

private:
    // Top-level rows open, the rows below them closed.
    void openTopLevelOnly();

    QtTreePropertyBrowser* m_browser;
    bool m_bExpanded = false;   // the last expand/collapse-all asked for
};
