// SPDX-License-Identifier: MIT
// The smallest plug-in that does something: a class of its own, and a menu entry that makes one.
#include <orvane/base/classdesc.h>
#include <orvane/base/node.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>

#include <QScopedPointer>

namespace {

class Pebble : public orvane::Node
{
public:
    const orvane::ClassDesc *RuntimeClass() const override;
};

const orvane::ClassDesc PebbleClass(orvane::Node::StaticClass(), orvane::Node::StaticClass(),
                                    "Pebble", "Pebble", orvane::createInstances<Pebble>, 0, 0);

const orvane::ClassDesc *Pebble::RuntimeClass() const
{
    return &PebbleClass;
}

void makePebble()
{
    const QScopedPointer<orvane::Node> node(orvane::Kernel()->CreateClassInstance(&PebbleClass));
    orvane::Kernel()->Log(QStringLiteral("Made a %1.").arg(node->RuntimeClass()->Name()));
}

void initialise()
{
    orvane::Kernel()->Interface()->AddCallbackMenuItem(orvane::Interface::menuMesh, QString(),
                                                       QStringLiteral("Make a Pebble"), makePebble,
                                                       QStringLiteral("minimal"), 900, false, 1);
}

const orvane::Plugin Record("Minimal", "Smallest Plug-in", "The Pebble Makers",
                            "https://pebbles.example", __DATE__ " " __TIME__, initialise);

} // namespace
