// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>

namespace orvane {

class Node;

//! Describes a node class at run time: its name, its parent, how to make one.
//! Made once per class as a static object; registers itself by name while it lives.
class ORVANE_EXPORT ClassDesc
{
public:
    //! Makes count objects (one for 0 or 1, otherwise an array that delete[] frees), each
    //! initialised, and answers the first. Null in a descriptor marks an abstract class.
    using Factory = Node *(*)(unsigned count);

    enum Flag {
        SelectionOnly = 1, //!< an operation that changes what is selected, and nothing else
    };

    //! parent: the base class, null for the root. category: the class under which a host lists
    //! this one. flags: of Flag. A name that is taken already is refused and logged: the first one
    //! stays.
    ClassDesc(const ClassDesc *parent, const ClassDesc *category, const char *name,
              const char *displayName, Factory factory, int version, int flags);
    ~ClassDesc();
    ClassDesc(const ClassDesc &) = delete;
    ClassDesc &operator=(const ClassDesc &) = delete;

    //! The registered descriptor of that name, or null.
    static const ClassDesc *ByName(const QString &name);

    const ClassDesc *Parent() const { return m_parent; }
    const ClassDesc *Category() const { return m_category; }
    const QString &Name() const { return m_name; }
    const QString &DisplayName() const { return m_displayName; }
    int Version() const { return m_version; }
    int Flags() const { return m_flags; }
    //! Is this the other class, or derived from it?
    bool IsA(const ClassDesc *other) const;

    //! New objects of the class, owned by the caller; null for an abstract class.
    Node *Create(unsigned count = 1) const;

private:
    const ClassDesc *m_parent;
    const ClassDesc *m_category;
    QString m_name;
    QString m_displayName;
    Factory m_factory;
    int m_version;
    int m_flags;
};

//! The factory of a class whose objects need no more than their parameterless constructor.
template <typename T>
Node *createInstances(unsigned count)
{
    if (count <= 1) {
        T *object = new T;
        object->Initialize();
        return object;
    }
    T *objects = new T[count];
    for (unsigned i = 0; i < count; ++i)
        objects[i].Initialize();
    return objects;
}

} // namespace orvane
