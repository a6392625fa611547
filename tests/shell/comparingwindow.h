// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerastackedwidget.h"
#include "comparechildframe.h"
#include "compareframe.h"
#include "globalui.h"
#include "gpudrawframe.h"
#include "imagestackedwidget.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QCheckBox>
#include <QTest>

/// A built window with a camera and two open files.
struct ComparingWindow : ShellHost
{
    explicit ComparingWindow(Panels panels = WithoutPanels)
        : ShellHost(panels)
    {
        services.active.fileInfo = "active 10x20";
        services.main.fileInfo = "main 30x40";
        services.compare.fileInfo = "compare 50x60";
        Build();
        halves = Compare()->findChildren<CompareChildFrame *>();
    }

    GPUDrawFrame *CameraFrame() const { return CameraStack()->GetMainFrame(); }
    GPUDrawFrame *ImageFrame() const { return ImageStack()->GetMainFrame(); }
    GPUDrawFrame *SecondFrame() const { return ImageStack()->GetSecondFrame(); }
    QList<GPUDrawFrame *> Lent() const { return { halves.at(0)->GetFrame(), halves.at(1)->GetFrame() }; }
    QCheckBox *Name(int half) const { return halves.at(half)->findChild<QCheckBox *>(); }
    QStringList Names() const { return { Name(0)->text(), Name(1)->text() }; }
    QList<bool> Checked() const { return { Name(0)->isChecked(), Name(1)->isChecked() }; }

    /// The pages of both stacks as they are without a comparison.
    void VerifyAtHome() const
    {
        QCOMPARE(CameraStack()->widget(0), static_cast<QWidget *>(CameraFrame()));
        QCOMPARE(CameraStack()->currentIndex(), 0);
        QCOMPARE(ImageStack()->widget(0), static_cast<QWidget *>(ImageFrame()));
        QCOMPARE(ImageStack()->currentIndex(), 0);
        QVERIFY(Compare()->isHidden());
        QVERIFY(SecondFrame()->isHidden());
        QCOMPARE(Lent(), QList<GPUDrawFrame *>({ nullptr, nullptr }));
    }

    FakeCameraMainManager camera;
    QList<CompareChildFrame *> halves;
};

/// Those of these classes, of all that were logged.
inline QStringList Calls(const QStringList &classes)
{
    QStringList calls;
    for (const QString &call : CallLog::Calls()) {
        for (const QString &name : classes) {
            if (call.startsWith(name))
                calls << call;
        }
    }
    return calls;
}
