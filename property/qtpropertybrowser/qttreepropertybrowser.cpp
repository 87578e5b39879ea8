#include "qttreepropertybrowser.h"

#include <functional>

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "qtpropertymanager.h"

// The tree of the browser; gives the delegate the row of an index.
class QtPropertyEditorView : public QTreeWidget
{
public:
    explicit QtPropertyEditorView(QWidget* parent) : QTreeWidget(parent) {}
    using QTreeWidget::itemFromIndex;
};

// Asks the browser's factories for editors of the value column.
class QtPropertyEditorDelegate : public QStyledItemDelegate
{
public:
    using EditorMaker = std::function<QWidget*(const QModelIndex&, QWidget*)>;
    QtPropertyEditorDelegate(QObject* parent, EditorMaker maker) : QStyledItemDelegate(parent), m_maker(maker) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override
    {
        if (index.column() != 1)
            return nullptr;
        QWidget* editor = m_maker(index, parent);
        if (editor)
        {
            editor->setAutoFillBackground(true);
            editor->setFocusPolicy(Qt::StrongFocus);
        }
        return editor;
    }
    // Factories keep editor and property in step themselves.
    void setEditorData(QWidget*, const QModelIndex&) const override {}
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        editor->setGeometry(option.rect.adjusted(0, 0, 0, -1));
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(qMax(size.height(), 22));
        return size;
    }

private:
    EditorMaker m_maker;
};

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget* parent) : QtAbstractPropertyBrowser(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_treeWidget = new QtPropertyEditorView(this);
    m_treeWidget->setObjectName("propertyTree");
    m_treeWidget->setColumnCount(2);
    m_treeWidget->setHeaderLabels({tr("Property"), tr("Value")});
    m_treeWidget->setUniformRowHeights(true);
    m_treeWidget->setAlternatingRowColors(true);
    m_treeWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_treeWidget->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_treeWidget->header()->setSectionsMovable(false);
    // Feature trees nest four or five levels deep in a narrow panel: a small
    // indentation leaves the names their room.
    m_treeWidget->setIndentation(kIndentation);
    m_treeWidget->viewport()->installEventFilter(this);
    setResizeMode(Stretch);
    m_delegate = new QtPropertyEditorDelegate(this, [this](const QModelIndex& index, QWidget* parentWidget) {
        QTreeWidgetItem* item = static_cast<QtPropertyEditorView*>(m_treeWidget)->itemFromIndex(index);
        QtBrowserItem* browserItem = m_itemToIndex.value(item);
        if (!browserItem || !canEdit(browserItem->property()))
            return static_cast<QWidget*>(nullptr);
        return createEditor(browserItem->property(), parentWidget);
    });
    m_treeWidget->setItemDelegate(m_delegate);
    layout->addWidget(m_treeWidget);

    connect(m_treeWidget, &QTreeWidget::currentItemChanged, this,
            &QtTreePropertyBrowser::slotCurrentTreeItemChanged);
    connect(m_treeWidget, &QTreeWidget::itemExpanded, this, &QtTreePropertyBrowser::slotItemExpanded);
    connect(m_treeWidget, &QTreeWidget::itemCollapsed, this, &QtTreePropertyBrowser::slotItemCollapsed);
    connect(this, &QtAbstractPropertyBrowser::currentItemChanged, this, [this](QtBrowserItem* item) {
        if (m_settingCurrent)
            return;
        QTreeWidgetItem* treeItem = m_indexToItem.value(item);
        if (treeItem != m_treeWidget->currentItem())
            m_treeWidget->setCurrentItem(treeItem);
    });
}

QtTreePropertyBrowser::~QtTreePropertyBrowser()
{
    closeEditor();
}

void QtTreePropertyBrowser::setHeaderVisible(bool visible)
{
    m_treeWidget->setHeaderHidden(!visible);
}

void QtTreePropertyBrowser::setResizeMode(ResizeMode mode)
{
    m_resizeMode = mode;
    QHeaderView::ResizeMode m = QHeaderView::Interactive;
    switch (mode)
    {
    case Interactive: m = QHeaderView::Interactive; break;
    case Fixed: m = QHeaderView::Fixed; break;
    case ResizeToContents: m = QHeaderView::ResizeToContents; break;
    case Stretch: m = QHeaderView::Interactive; break;   // sized by stretchNameColumn()
    }
    m_treeWidget->header()->setSectionResizeMode(m);
    m_treeWidget->header()->setStretchLastSection(true);
    stretchNameColumn();
}

void QtTreePropertyBrowser::stretchNameColumn()
{
    // Names are long and values mostly short: the name column takes the
    // larger share of the width, the value column the rest.
    if (m_resizeMode == Stretch)
        setSplitterPosition(m_treeWidget->viewport()->width() * kNameColumnPercent / 100);
}

bool QtTreePropertyBrowser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_treeWidget->viewport() && event->type() == QEvent::Resize)
        stretchNameColumn();
    return QtAbstractPropertyBrowser::eventFilter(watched, event);
}

int QtTreePropertyBrowser::splitterPosition() const
{
    return m_treeWidget->header()->sectionSize(0);
}

void QtTreePropertyBrowser::setSplitterPosition(int position)
{
    m_treeWidget->header()->setStretchLastSection(false);
    m_treeWidget->header()->resizeSection(0, position);
    m_treeWidget->header()->setStretchLastSection(true);
}

void QtTreePropertyBrowser::setExpanded(QtBrowserItem* item, bool expand)
{
    if (QTreeWidgetItem* treeItem = m_indexToItem.value(item))
        treeItem->setExpanded(expand);
}

bool QtTreePropertyBrowser::isExpanded(QtBrowserItem* item) const
{
    QTreeWidgetItem* treeItem = m_indexToItem.value(item);
    return treeItem && treeItem->isExpanded();
}

bool QtTreePropertyBrowser::isItemVisible(QtBrowserItem* item) const
{
    QTreeWidgetItem* treeItem = m_indexToItem.value(item);
    return treeItem && !treeItem->isHidden();
}

void QtTreePropertyBrowser::setItemVisible(QtBrowserItem* item, bool visible)
{
    if (QTreeWidgetItem* treeItem = m_indexToItem.value(item))
        ShowItem(treeItem, visible);
}

void QtTreePropertyBrowser::editItem(QtBrowserItem* item)
{
    if (QTreeWidgetItem* treeItem = m_indexToItem.value(item))
    {
        m_treeWidget->setCurrentItem(treeItem, 1);
        openEditor(treeItem);
    }
}

// ---------------------------------------------------------------- items

void QtTreePropertyBrowser::itemInserted(QtBrowserItem* item, QtBrowserItem* afterItem)
{
    QTreeWidgetItem* afterTreeItem = m_indexToItem.value(afterItem);
    QTreeWidgetItem* parentTreeItem = m_indexToItem.value(item->parent());
    QTreeWidgetItem* newItem = nullptr;
    if (parentTreeItem)
    {
        const int pos = afterTreeItem ? parentTreeItem->indexOfChild(afterTreeItem) + 1 : 0;
        newItem = new QTreeWidgetItem();
        parentTreeItem->insertChild(pos, newItem);
    }
    else
    {
        const int pos = afterTreeItem ? m_treeWidget->indexOfTopLevelItem(afterTreeItem) + 1 : 0;
        newItem = new QTreeWidgetItem();
        m_treeWidget->insertTopLevelItem(pos, newItem);
    }
    m_itemToIndex.insert(newItem, item);
    m_indexToItem.insert(item, newItem);
    newItem->setFlags(newItem->flags() | Qt::ItemIsEditable);
    newItem->setExpanded(true);
    updateItem(newItem);
}

void QtTreePropertyBrowser::itemRemoved(QtBrowserItem* item)
{
    QTreeWidgetItem* treeItem = m_indexToItem.take(item);
    if (!treeItem)
        return;
    if (m_editedItem == treeItem)
        closeEditor();
    m_itemToIndex.remove(treeItem);
    delete treeItem;
}

void QtTreePropertyBrowser::itemChanged(QtBrowserItem* item)
{
    QTreeWidgetItem* treeItem = m_indexToItem.value(item);
    if (!treeItem)
        return;
    updateItem(treeItem);
    // A row that became read-only or unavailable loses its editor; one that
    // became editable while current gets it.
    if (treeItem == m_treeWidget->currentItem())
    {
        const bool editable = canEdit(item->property());
        if (m_editedItem == treeItem && !editable)
            closeEditor();
        else if (m_editedItem != treeItem && editable)
            openEditor(treeItem);
    }
}

void QtTreePropertyBrowser::updateItem(QTreeWidgetItem* item)
{
    QtProperty* property = m_itemToIndex.value(item)->property();
    const bool isGroup = !property->hasValue();
    QString valueText;
    QIcon valueIcon;
    if (!isGroup)
    {
        if (!property->isAvailable())
            valueText = property->notAvailableText();
        else
        {
            valueText = property->valueText();
            valueIcon = property->valueIcon();
        }
    }
    if (item->text(0) != property->propertyName())
        item->setText(0, property->propertyName());
    if (item->text(1) != valueText)
        item->setText(1, valueText);
    item->setIcon(1, valueIcon);
    const QString toolTip = property->toolTip();
    if (item->toolTip(0) != toolTip)
    {
        item->setToolTip(0, toolTip);
        item->setToolTip(1, toolTip);
    }
    item->setStatusTip(0, property->statusTip());
    item->setWhatsThis(0, property->whatsThis());
    const bool active = property->isEnabled() && property->isAvailable();
    const QBrush brush = active ? QBrush() : QBrush(QApplication::palette().color(QPalette::Disabled, QPalette::Text));
    item->setForeground(0, brush);
    item->setForeground(1, brush);
    if (isGroup)
    {
        QFont font = item->font(0);
        if (!font.bold())
        {
            font.setBold(true);
            item->setFont(0, font);
        }
        item->setFirstColumnSpanned(false);
    }
}

bool QtTreePropertyBrowser::canEdit(QtProperty* property) const
{
    return property && property->hasValue() && property->isEnabled() && property->isAvailable() &&
           property->isEditable() && factoryFor(property);
}

void QtTreePropertyBrowser::openEditor(QTreeWidgetItem* item)
{
    closeEditor();
    QtBrowserItem* browserItem = m_itemToIndex.value(item);
    if (!browserItem || !canEdit(browserItem->property()))
        return;
    m_editedItem = item;
    m_treeWidget->openPersistentEditor(item, 1);
}

void QtTreePropertyBrowser::closeEditor()
{
    if (!m_editedItem)
        return;
    QTreeWidgetItem* item = m_editedItem;
    m_editedItem = nullptr;
    m_treeWidget->closePersistentEditor(item, 1);
}

void QtTreePropertyBrowser::slotCurrentTreeItemChanged(QTreeWidgetItem* current, QTreeWidgetItem*)
{
    if (current)
        openEditor(current);
    else
        closeEditor();
    m_settingCurrent = true;
    setCurrentItem(m_itemToIndex.value(current));
    m_settingCurrent = false;
}

void QtTreePropertyBrowser::slotItemExpanded(QTreeWidgetItem* item)
{
    if (QtBrowserItem* browserItem = m_itemToIndex.value(item))
        emit expanded(browserItem);
}

void QtTreePropertyBrowser::slotItemCollapsed(QTreeWidgetItem* item)
{
    if (QtBrowserItem* browserItem = m_itemToIndex.value(item))
        emit collapsed(browserItem);
}

// ---------------------------------------------------------------- filter

void QtTreePropertyBrowser::setShowType(int type)
{
    m_showType = type;
    UpdateShow();
}

void QtTreePropertyBrowser::setShowKey(const QString& key)
{
    setKey(key);
    UpdateShow();
}

bool QtTreePropertyBrowser::matchesFilter(QtProperty* property) const
{
    if (qobject_cast<QtGroupPropertyManager*>(property->propertyManager()))
        return false;
    if (property->GetType() > getShowType())
        return false;
    const QString key = getKey();
    return key.isEmpty() || property->propertyName().indexOf(key, 0, Qt::CaseInsensitive) >= 0;
}

void QtTreePropertyBrowser::ShowItem(QTreeWidgetItem* item, bool show)
{
    if (item->isHidden() == !show)
        return;
    item->setHidden(!show);
}

void QtTreePropertyBrowser::UpdateShow()
{
    // Work out the outcome first (every row hidden, then each matching
    // value row shown with its ancestors), then touch only rows that change.
    QHash<QTreeWidgetItem*, bool> shown;
    shown.reserve(m_itemToIndex.size());
    QTreeWidgetItemIterator it(m_treeWidget);
    QList<QTreeWidgetItem*> order;
    order.reserve(m_itemToIndex.size());
    for (; *it; ++it)
    {
        QTreeWidgetItem* item = *it;
        order.append(item);
        shown.insert(item, false);
    }
    for (QTreeWidgetItem* item : qAsConst(order))
    {
        QtBrowserItem* browserItem = m_itemToIndex.value(item);
        if (!browserItem || !matchesFilter(browserItem->property()))
            continue;
        for (QTreeWidgetItem* up = item; up; up = up->parent())
        {
            bool& flag = shown[up];
            if (flag && up != item)
                break;   // ancestors already shown
            flag = true;
        }
    }
    // Only a tree that paints is paused and resumed here: one whose updates
    // are off (its own or a parent's) is left as its owner set it.
    const bool pause = m_treeWidget->updatesEnabled();
    if (pause)
        m_treeWidget->setUpdatesEnabled(false);
    for (QTreeWidgetItem* item : qAsConst(order))
        ShowItem(item, shown.value(item));
    if (pause)
        m_treeWidget->setUpdatesEnabled(true);
}

void QtTreePropertyBrowser::getShowedProperties(QList<QtProperty*>& properties)
{
    properties.clear();
    const QRect viewport = m_treeWidget->viewport()->rect();
    QTreeWidgetItem* item = m_treeWidget->itemAt(0, 0);
    while (item)
    {
        const QRect rect = m_treeWidget->visualItemRect(item);
        if (!rect.isValid() || rect.top() > viewport.bottom())
            break;
        if (QtBrowserItem* browserItem = m_itemToIndex.value(item))
            properties.append(browserItem->property());
        item = m_treeWidget->itemBelow(item);
    }
}

bool QtTreePropertyBrowser::isPropertyInvisible(QtProperty* property, int type, bool* ok)
{
    const bool known = property && !items(property).isEmpty();
    if (ok)
        *ok = known;
    if (!known)
        return true;
    return property->GetType() > type;
}
