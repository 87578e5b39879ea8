#pragma once
// The property browser as a two-column tree (name, value). Editors open on
// the current row. Rows are filtered by visibility level and by a search
// key (UpdateShow); the filter touches only rows whose state changes, so a
// keystroke stays quick on trees of thousands of rows.
#include <QHash>
#include <QTreeWidget>

#include "qtpropertybrowser.h"

class QTreeWidgetItem;
class QtPropertyEditorDelegate;

class QtTreePropertyBrowser : public QtAbstractPropertyBrowser
{
    Q_OBJECT
public:
    enum ResizeMode
    {
        Interactive,
        Stretch,
        Fixed,
        ResizeToContents
    };

    explicit QtTreePropertyBrowser(QWidget* parent = nullptr);
    ~QtTreePropertyBrowser() override;

    void setHeaderVisible(bool visible);
    // Stretch (the default): the name column keeps 60 % of the width, the
    // value column the rest.
    ResizeMode resizeMode() const { return m_resizeMode; }
    void setResizeMode(ResizeMode mode);
    int splitterPosition() const;
    void setSplitterPosition(int position);

    void setExpanded(QtBrowserItem* item, bool expanded);
    bool isExpanded(QtBrowserItem* item) const;
    bool isItemVisible(QtBrowserItem* item) const;
    void setItemVisible(QtBrowserItem* item, bool visible);
    void editItem(QtBrowserItem* item);

    // Level (0 Beginner, 1 Expert, 2 Guru) and key of the row filter; each
    // setter runs the filter.
    void setShowType(int type);
    int showType() const { return m_showType; }
    void setShowKey(const QString& key);
    QString showKey() const { return m_showKey; }
    // Re-applies the filter: a value row is shown when its level is at most
    // the show type and its name contains the key (case-insensitive); its
    // ancestors are shown with it. Group rows show only through such rows.
    void UpdateShow();
    // Properties of the rows currently visible in the viewport.
    void getShowedProperties(QList<QtProperty*>& properties);
    // Whether the filter at this level hides the property; ok tells whether
    // the browser shows the property at all.
    bool isPropertyInvisible(QtProperty* property, int type, bool* ok = nullptr);

    // The tree and the row of a browser item (for tests and for painting).
    QTreeWidget* treeWidget() const { return m_treeWidget; }
    QTreeWidgetItem* treeItem(QtBrowserItem* item) const { return m_indexToItem.value(item); }
    QtBrowserItem* browserItem(QTreeWidgetItem* item) const { return m_itemToIndex.value(item); }

signals:
    void collapsed(QtBrowserItem* item);
    void expanded(QtBrowserItem* item);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void itemInserted(QtBrowserItem* item, QtBrowserItem* afterItem) override;
    void itemRemoved(QtBrowserItem* item) override;
    void itemChanged(QtBrowserItem* item) override;

private slots:
    void slotCurrentTreeItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slotItemExpanded(QTreeWidgetItem* item);
    void slotItemCollapsed(QTreeWidgetItem* item);

private:
    static const int kIndentation = 14;
    static const int kNameColumnPercent = 60;

    // In Stretch mode the name column keeps its share of the width.
    void stretchNameColumn();
    void updateItem(QTreeWidgetItem* item);
    bool canEdit(QtProperty* property) const;
    void openEditor(QTreeWidgetItem* item);
    void closeEditor();
    bool matchesFilter(QtProperty* property) const;
    // private part of the filter
    void setKey(const QString& key) { m_showKey = key; }
    QString getKey() const { return m_showKey; }
    int getShowType() const { return m_showType; }
    void ShowItem(QTreeWidgetItem* item, bool show);

    QTreeWidget* m_treeWidget;
    QtPropertyEditorDelegate* m_delegate;
    QHash<QtBrowserItem*, QTreeWidgetItem*> m_indexToItem;
    QHash<QTreeWidgetItem*, QtBrowserItem*> m_itemToIndex;
    QTreeWidgetItem* m_editedItem = nullptr;
    ResizeMode m_resizeMode = Stretch;
    int m_showType = 2;
    QString m_showKey;
    bool m_settingCurrent = false;
};
