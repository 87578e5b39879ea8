#pragma once
// Gives a new object the name style sheets and tests know it by, where it
// is made:  m_btnOk = named(new QPushButton(this), "btnOk");
#include <QString>

template <class Object>
Object* named(Object* object, const char* name)
{
    object->setObjectName(QLatin1String(name));
    return object;
}
