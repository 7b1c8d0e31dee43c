// SPDX-License-Identifier: MIT
#include <orvane/base/classdesc.h>

#include <orvane/base/log.h>

#include <QHash>

namespace orvane {

namespace {

QHash<QString, const ClassDesc *> &registry()
{
    static QHash<QString, const ClassDesc *> classes;
    return classes;
}

} // namespace

ClassDesc::ClassDesc(const ClassDesc *parent, const ClassDesc *category, const char *name,
                     const char *displayName, Factory factory, int version, int flags)
    : m_parent(parent),
      m_category(category),
      m_name(QString::fromUtf8(name)),
      m_displayName(QString::fromUtf8(displayName)),
      m_factory(factory),
      m_version(version),
      m_flags(flags)
{
    if (registry().contains(m_name)) {
        log(QStringLiteral("A second class named %1 was refused.").arg(m_name));
        return;
    }
    registry().insert(m_name, this);
}

ClassDesc::~ClassDesc()
{
    if (registry().value(m_name) == this)
        registry().remove(m_name);
}

const ClassDesc *ClassDesc::ByName(const QString &name)
{
    return registry().value(name);
}

bool ClassDesc::IsA(const ClassDesc *other) const
{
    for (const ClassDesc *desc = this; desc; desc = desc->m_parent) {
        if (desc == other)
            return true;
    }
    return false;
}

Node *ClassDesc::Create(unsigned count) const
{
    return m_factory ? m_factory(count) : nullptr;
}

} // namespace orvane
