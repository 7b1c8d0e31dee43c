// SPDX-License-Identifier: MIT
#include "ui/manualretopodialog.h"

#include <QMetaMethod>

#include <gtest/gtest.h>

namespace {

struct Method
{
    QMetaMethod::MethodType type;
    const char *signature;
    const char *parameter;
};

const Method Methods[] = {
    {QMetaMethod::Signal, "createMesh()", nullptr},
    {QMetaMethod::Signal, "renderIntersectionsCheckBox(int)", "state"},
    {QMetaMethod::Signal, "dialogClosed()", nullptr},
    {QMetaMethod::Slot, "refreshRadio()", nullptr},
    {QMetaMethod::Slot, "bringUpHelp()", nullptr},
    {QMetaMethod::Slot, "onMaximumEdgesChanged(QString)", ""},
    {QMetaMethod::Slot, "onMergeDistanceChanged(QString)", ""},
    {QMetaMethod::Slot, "onIntersectionToleranceChanged(QString)", ""},
    {QMetaMethod::Slot, "onOverrunChanged(QString)", ""},
    {QMetaMethod::Slot, "onCreateMesh()", nullptr},
    {QMetaMethod::Slot, "onRenderIntersectionCheck(int)", "state"},
    {QMetaMethod::Slot, "onSelfIntersectionCheck(int)", "state"},
    {QMetaMethod::Slot, "onOk()", nullptr},
};
const int MethodCount = 13;

} // namespace

TEST(SettingsDialogMeta, isADialogOfItsName)
{
    const QMetaObject &meta = ManualRetopoDialog::staticMetaObject;
    EXPECT_STREQ(meta.className(), "ManualRetopoDialog");
    EXPECT_EQ(meta.superClass(), &QDialog::staticMetaObject);
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST(SettingsDialogMeta, signalsAndSlotsHaveTheirIndicesAndAreAllPublic)
{
    const QMetaObject &meta = ManualRetopoDialog::staticMetaObject;
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), MethodCount);
    for (int i = 0; i < MethodCount; ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        EXPECT_EQ(method.methodSignature(), Methods[i].signature) << i;
        EXPECT_EQ(method.methodType(), Methods[i].type) << i;
        EXPECT_EQ(method.access(), QMetaMethod::Public) << i;
        EXPECT_STREQ(method.typeName(), "void") << i;
    }
}

TEST(SettingsDialogMeta, statesAreNamedAndTextsAreNot)
{
    const QMetaObject &meta = ManualRetopoDialog::staticMetaObject;
    for (int i = 0; i < MethodCount; ++i) {
        QList<QByteArray> expected;
        if (Methods[i].parameter)
            expected.append(Methods[i].parameter);
        EXPECT_EQ(meta.method(meta.methodOffset() + i).parameterNames(), expected) << i;
    }
}
