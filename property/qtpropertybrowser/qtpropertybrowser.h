#pragma once
// Core of our property browser: properties, their managers, the browser
// items that show them and the editor factories that edit them. A property
// is plain data owned by its manager; the manager announces every change
// through its signals and browsers follow them.
#include <QIcon>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QSignalBlocker>
#include <QString>
#include <QWidget>

class QtAbstractPropertyManager;
class QtAbstractPropertyBrowser;
class QtBrowserItem;

class QtProperty
{
public:
    // Display modes: normal, or the display icon beside the value.
    enum EDisplayMode
    {
        DisplayNormal = 0,
        DisplayIcon = 1
    };

    virtual ~QtProperty();

    QList<QtProperty*> subProperties() const { return m_children; }
    QList<QtProperty*> parentProperties() const { return m_parents; }
    QtAbstractPropertyManager* propertyManager() const { return m_manager; }

    QString toolTip() const { return m_toolTip; }
    QString statusTip() const { return m_statusTip; }
    QString whatsThis() const { return m_whatsThis; }
    QString propertyName() const { return m_name; }
    bool isEnabled() const { return m_enabled; }
    bool isModified() const { return m_modified; }
    bool hasValue() const;
    QIcon valueIcon() const;
    QString valueText() const;

    void setToolTip(const QString& text);
    void setStatusTip(const QString& text);
    void setWhatsThis(const QString& text);
    void setPropertyName(const QString& text);
    void setEnabled(bool enable);
    void setModified(bool modified);

    void addSubProperty(QtProperty* property);
    void insertSubProperty(QtProperty* property, QtProperty* afterProperty);
    void removeSubProperty(QtProperty* property);

    // Availability: an unavailable row shows notAvailableText() instead of its value.
    void setAvailable(bool available);
    bool isAvailable() const { return m_available; }
    void setNotAvailableText(const QString& text);
    QString notAvailableText() const { return m_notAvailableText; }

    // Command rows: their push button is shown while done, the executing
    // text while the camera still works on the command.
    void setCommandType(bool command);
    bool isCommandType() const { return m_commandType; }
    void setDone(bool done) { m_done = done; }
    bool isDone() const { return m_done; }
    void setDoneText(const QString& text) { m_doneText = text; }
    QString doneText() const { return m_doneText; }
    void setExecutingText(const QString& text) { m_executingText = text; }
    QString executingText() const { return m_executingText; }

    // Visibility level of the feature: 0 Beginner, 1 Expert, 2 Guru.
    void SetType(int type);
    int GetType() const { return m_type; }

    // The full information text of the row, kept while the tooltip shows a warning.
    void setTxtTag(const QString& text) { m_txtTag = text; }
    QString txtTag() const { return m_txtTag; }

    void setDisplayIcon(const QIcon& icon);
    QIcon displayIcon() const { return m_displayIcon; }
    void setDisplayMode(EDisplayMode mode);
    void setDisplayMode(int mode) { setDisplayMode(EDisplayMode(mode)); }
    EDisplayMode displayMode() const { return m_displayMode; }

    void setEditable(bool editable) { m_editable = editable; }
    bool isEditable() const { return m_editable; }
    void setMaxLength(int length) { m_maxLength = length; }
    int getMaxLength() const { return m_maxLength; }

    // Change tracking of the visibility level: set by SetType, cleared here.
    void initTypeChanged() { m_typeChanged = false; }
    bool hasTypeChanged() const { return m_typeChanged; }

protected:
    explicit QtProperty(QtAbstractPropertyManager* manager);
    void propertyChanged();
    // Sets the field and tells the manager, unless it holds the value already.
    template <class T>
    void changeTo(T& field, const T& value);

private:
    friend class QtAbstractPropertyManager;

    QtAbstractPropertyManager* m_manager;
    QList<QtProperty*> m_parents;
    QList<QtProperty*> m_children;
    QString m_name, m_toolTip, m_statusTip, m_whatsThis;
    bool m_enabled = true;
    bool m_modified = false;

    bool m_available = true;
    QString m_notAvailableText;
    bool m_commandType = false;
    bool m_done = true;
    QString m_doneText, m_executingText;
    int m_type = 0;
    bool m_typeChanged = false;
    QString m_txtTag;
    QIcon m_displayIcon;
    EDisplayMode m_displayMode = DisplayNormal;
    bool m_editable = true;
    int m_maxLength = -1;
};

class QtAbstractPropertyManager : public QObject
{
    Q_OBJECT
public:
    explicit QtAbstractPropertyManager(QObject* parent = nullptr);
    ~QtAbstractPropertyManager() override;

    QSet<QtProperty*> properties() const { return m_properties; }
    void clear() const;
    QtProperty* addProperty(const QString& name = QString());

signals:
    void propertyInserted(QtProperty* property, QtProperty* parent, QtProperty* after);
    void propertyChanged(QtProperty* property);
    void propertyRemoved(QtProperty* property, QtProperty* parent);
    void propertyDestroyed(QtProperty* property);

protected:
    friend class QtProperty;
    virtual bool hasValue(const QtProperty* property) const;
    virtual QIcon valueIcon(const QtProperty* property) const;
    virtual QString valueText(const QtProperty* property) const;
    virtual void initializeProperty(QtProperty* property) = 0;
    virtual void uninitializeProperty(QtProperty* property);
    virtual QtProperty* createProperty();

private:
    void forgetProperty(QtProperty* property);
    QSet<QtProperty*> m_properties;
};

// One appearance of a property in a browser: the same property can appear
// under several parents, each time as its own item.
class QtBrowserItem
{
public:
    QtProperty* property() const { return m_property; }
    QtBrowserItem* parent() const { return m_parent; }
    QList<QtBrowserItem*> children() const { return m_children; }
    QtAbstractPropertyBrowser* browser() const { return m_browser; }

private:
    friend class QtAbstractPropertyBrowser;
    QtBrowserItem(QtAbstractPropertyBrowser* browser, QtProperty* property, QtBrowserItem* parent)
        : m_browser(browser), m_property(property), m_parent(parent)
    {
    }
    QtAbstractPropertyBrowser* m_browser;
    QtProperty* m_property;
    QtBrowserItem* m_parent;
    QList<QtBrowserItem*> m_children;
};

class QtAbstractEditorFactoryBase : public QObject
{
    Q_OBJECT
public:
    virtual QWidget* createEditor(QtProperty* property, QWidget* parent) = 0;

protected:
    explicit QtAbstractEditorFactoryBase(QObject* parent = nullptr) : QObject(parent) {}
    virtual void breakConnection(QtAbstractPropertyManager* manager) = 0;

protected slots:
    virtual void managerDestroyed(QObject* manager) = 0;

    friend class QtAbstractPropertyBrowser;
};

// Editor factory for the properties of one manager class.
template <class PropertyManager>
class QtAbstractEditorFactory : public QtAbstractEditorFactoryBase
{
public:
    explicit QtAbstractEditorFactory(QObject* parent = nullptr) : QtAbstractEditorFactoryBase(parent) {}

    QWidget* createEditor(QtProperty* property, QWidget* parent) override
    {
        for (PropertyManager* manager : m_managers)
            if (manager == property->propertyManager())
                return createEditor(manager, property, parent);
        return nullptr;
    }
    void addPropertyManager(PropertyManager* manager)
    {
        if (m_managers.contains(manager))
            return;
        m_managers.insert(manager);
        connectPropertyManager(manager);
        connect(manager, &QObject::destroyed, this, &QtAbstractEditorFactory::managerDestroyed);
    }
    void removePropertyManager(PropertyManager* manager)
    {
        if (!m_managers.contains(manager))
            return;
        disconnect(manager, &QObject::destroyed, this, &QtAbstractEditorFactory::managerDestroyed);
        disconnectPropertyManager(manager);
        m_managers.remove(manager);
    }
    QSet<PropertyManager*> propertyManagers() const { return m_managers; }
    PropertyManager* propertyManager(QtProperty* property) const
    {
        QtAbstractPropertyManager* manager = property->propertyManager();
        for (PropertyManager* m : m_managers)
            if (m == manager)
                return m;
        return nullptr;
    }

protected:
    virtual void connectPropertyManager(PropertyManager* manager) = 0;
    virtual QWidget* createEditor(PropertyManager* manager, QtProperty* property, QWidget* parent) = 0;
    virtual void disconnectPropertyManager(PropertyManager* manager) = 0;
    void managerDestroyed(QObject* manager) override
    {
        for (PropertyManager* m : m_managers)
            if (m == manager)
            {
                m_managers.remove(m);
                return;
            }
    }

private:
    void breakConnection(QtAbstractPropertyManager* manager) override
    {
        for (PropertyManager* m : m_managers)
            if (m == manager)
            {
                removePropertyManager(m);
                return;
            }
    }
    QSet<PropertyManager*> m_managers;
};

// Keeps track of the open editors of each property so that a value change
// reaches every editor showing it, and a closed editor is forgotten.
template <class Editor>
class EditorFactoryPrivate
{
public:
    void initializeEditor(QtProperty* property, Editor* editor)
    {
        m_createdEditors[property].append(editor);
        m_editorToProperty.insert(editor, property);
    }
    void slotEditorDestroyed(QObject* object)
    {
        for (auto it = m_editorToProperty.begin(); it != m_editorToProperty.end(); ++it)
        {
            if (it.key() == object)
            {
                Editor* editor = it.key();
                QtProperty* property = it.value();
                auto pit = m_createdEditors.find(property);
                if (pit != m_createdEditors.end())
                {
                    pit.value().removeAll(editor);
                    if (pit.value().isEmpty())
                        m_createdEditors.erase(pit);
                }
                m_editorToProperty.erase(it);
                return;
            }
        }
    }
    QList<Editor*> editors(QtProperty* property) const { return m_createdEditors.value(property); }
    QtProperty* propertyOf(QObject* editor) const
    {
        for (auto it = m_editorToProperty.constBegin(); it != m_editorToProperty.constEnd(); ++it)
            if (it.key() == editor)
                return it.value();
        return nullptr;
    }

    QMap<QtProperty*, QList<Editor*>> m_createdEditors;
    QMap<Editor*, QtProperty*> m_editorToProperty;
};

// An editor factory whose editors are widgets of one class: it keeps them
// per property, forgets the ones closed, deletes the ones still open when
// it goes, and hands an edit made in an editor on to the property's manager.
template <class PropertyManager, class Editor>
class QtEditorFactory : public QtAbstractEditorFactory<PropertyManager>
{
public:
    explicit QtEditorFactory(QObject* parent = nullptr) : QtAbstractEditorFactory<PropertyManager>(parent) {}
    ~QtEditorFactory() override { qDeleteAll(d.m_editorToProperty.keys()); }

protected:
    void disconnectPropertyManager(PropertyManager* manager) override
    {
        QObject::disconnect(manager, nullptr, this, nullptr);
    }
    // Keeps the editor of the property until it is destroyed.
    void addEditor(QtProperty* property, Editor* editor)
    {
        d.initializeEditor(property, editor);
        QObject::connect(editor, &QObject::destroyed, this, &QtEditorFactory::slotEditorDestroyed);
    }
    // The value the user set in the editor goes to its property's manager.
    template <class Value>
    void setValueFrom(QObject* editor, const Value& value)
    {
        QtProperty* property = d.propertyOf(editor);
        if (PropertyManager* manager = property ? this->propertyManager(property) : nullptr)
            manager->setValue(property, value);
    }
    // A change of the property reaches each of its open editors, whose own
    // signals are blocked meanwhile so it does not come back as an edit.
    template <class Update>
    void updateEditors(QtProperty* property, Update update)
    {
        for (Editor* editor : d.editors(property))
        {
            const QSignalBlocker block(editor);
            update(editor);
        }
    }
    void slotEditorDestroyed(QObject* object) { d.slotEditorDestroyed(object); }

    EditorFactoryPrivate<Editor> d;
};

// A browser shows top-level properties and, below them, their sub-properties,
// and edits them through the factory set for each manager.
class QtAbstractPropertyBrowser : public QWidget
{
    Q_OBJECT
public:
    explicit QtAbstractPropertyBrowser(QWidget* parent = nullptr);
    ~QtAbstractPropertyBrowser() override;

    QList<QtProperty*> properties() const { return m_topProperties; }
    QList<QtBrowserItem*> items(QtProperty* property) const { return m_propertyToItems.value(property); }
    QtBrowserItem* topLevelItem(QtProperty* property) const;
    QList<QtBrowserItem*> topLevelItems() const { return m_topItems; }
    void clear();

    template <class PropertyManager>
    void setFactoryForManager(PropertyManager* manager, QtAbstractEditorFactory<PropertyManager>* factory)
    {
        QtAbstractPropertyManager* abstractManager = manager;
        auto it = m_managerToFactory.find(abstractManager);
        if (it != m_managerToFactory.end())
            unsetFactoryForManager(abstractManager);
        factory->addPropertyManager(manager);
        m_managerToFactory.insert(abstractManager, factory);
    }
    void unsetFactoryForManager(QtAbstractPropertyManager* manager);

    QtBrowserItem* currentItem() const { return m_currentItem; }
    void setCurrentItem(QtBrowserItem* item);

signals:
    void currentItemChanged(QtBrowserItem* item);

public slots:
    QtBrowserItem* addProperty(QtProperty* property);
    QtBrowserItem* insertProperty(QtProperty* property, QtProperty* afterProperty);
    void removeProperty(QtProperty* property);

protected:
    virtual void itemInserted(QtBrowserItem* item, QtBrowserItem* afterItem) = 0;
    virtual void itemRemoved(QtBrowserItem* item) = 0;
    virtual void itemChanged(QtBrowserItem* item) = 0;
    QWidget* createEditor(QtProperty* property, QWidget* parent);
    QtAbstractEditorFactoryBase* factoryFor(QtProperty* property) const;

private slots:
    void slotPropertyInserted(QtProperty* property, QtProperty* parent, QtProperty* after);
    void slotPropertyRemoved(QtProperty* property, QtProperty* parent);
    void slotPropertyDestroyed(QtProperty* property);
    void slotPropertyDataChanged(QtProperty* property);

private:
    void insertItems(QtProperty* property, QtBrowserItem* parentItem, QtBrowserItem* afterItem);
    void removeBrowserItem(QtBrowserItem* item);
    void addPropertyUse(QtProperty* property);
    void removePropertyUse(QtProperty* property);

    QList<QtProperty*> m_topProperties;
    QList<QtBrowserItem*> m_topItems;
    QHash<QtProperty*, QList<QtBrowserItem*>> m_propertyToItems;
    QHash<QtProperty*, int> m_propertyUse;        // how many items show the property
    QMap<QtAbstractPropertyManager*, int> m_managerUse;
    QMap<QtAbstractPropertyManager*, QtAbstractEditorFactoryBase*> m_managerToFactory;
    QtBrowserItem* m_currentItem = nullptr;
};

Q_DECLARE_METATYPE(QtProperty*)
Q_DECLARE_METATYPE(QtBrowserItem*)
