// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakeservices.h"

#include <QMetaMethod>

Q_DECLARE_METATYPE(const QMetaObject *)

namespace {

/// What others connect to by its spelling: a renamed signal or slot would fail only at run time.
struct Contract
{
    const QMetaObject *service;
    QVector<const char *> signalNames;
    QVector<const char *> slotNames;
};

const Contract contracts[] = {
    {&UIConfigManager::staticMetaObject,
     {"signalSwitchView()", "signalSetCPUDraw(bool)", "signalUpdateCameraControlUI()",
      "signalUpdateImageControlUI()", "signalUpdateMeasureControlUI()",
      "signalImageInfoChanged()", "signalSetMergeButtonVisible(bool)",
      "signalSetSelectButtonVisible(bool)", "signalAddToThumbnailList(QString)"},
     {"slotFileViewReturn()", "slotSetFileView()", "slotConvertToCSV()", "slotModifyDPI()"}},
    {&GlobalManager::staticMetaObject,
     {"signalUpdateImageCompareFrame()"},
     {"slotSetCompareView()", "slotRename(QObject*,QString)", "slotCloseAllImage()",
      "slotCloseImage(QObject*)", "slotSetImageChecked(QObject*,bool)",
      "slotSetAllImageChecked(bool)", "slotSaveCompare()", "slotOpenImage(QString,QObject*)",
      "slotSetGraphicsScene(QGraphicsScene*)"}},
    {&ImageManager::staticMetaObject,
     {"sglAddThumbnail(QImage)", "signalSetCropState(int,bool)", "signalUpdateFileName(QString)",
      "signalCurrentFileFrameNumber(int)", "signalCurrentFrame(int)", "signalUpdateFileNameAndSize(QString)",
      "signalResetImageInfo()", "signalResetImageSize()",
      "sglUpdateHorizontalCurve(int*, int, int, int)",
      "sglUpdateVerticalCurve(int*, int, int, int)", "signalUpdateLevel(int, int)",
      "signalUpdatePseudoColor(const QVector<QColor>)", "signalOpenSpefile()"},
     {"slotRotateImage(int)", "slotSaveImageAs()", "slotImageCrop()", "slotImageInfo()",
      "slotCrop(int,int,int,int,bool)", "slotNewImageCopy(void*)",
      "slotMouseMoveEvent(QMouseEvent*)", "slotMousePressEvent(QMouseEvent*,QPointF)",
      "slotMouseReleaseEvent(QMouseEvent*)", "slotMouseDoubleClickEvent(QMouseEvent*)"}},
    {&AdvancedProcessManager::staticMetaObject,
     {"signalNewImageCopy(void*)"},
     {"slotMergeImages(QList<QString>)"}},
    {&FluorescenceSynthesisManager::staticMetaObject,
     {"signalNewImageCopy(void*)"},
     {}},
    {&PreviewManager::staticMetaObject,
     {"signalPreviewImage(QImage)", "signalSetUpdatesEnabled(bool)", "signalImageSizeChanged()"},
     {"slotManualROI(int,int,int,int,bool)"}},
    {&PixelInfoManager::staticMetaObject,
     {"signalUpdatePixelInfo(QPointF,QString)"},
     {"slotUpdateMousePosition(QPointF)"}},
    {&IntensityManager::staticMetaObject,
     {"SignalUpdateCurve(void *)", "SignalPseudoColorsUpdate(const QVector<QColor>)"},
     {}},
    {&FrameProcessManager::staticMetaObject,
     {"signalDraw(QImage)"},
     {"slotScaleFactorChanged(double)"}},
    {&FrameSaveManager::staticMetaObject,
     {"signalUpdateRAMSaveFrames(int)", "signalUpdateSenExtractNumber(int)",
      "signalUpdateTotalTime(int)", "signalUpdateDelayTime(int)", "signalUpdateSaveNumber(int)",
      "signalSetTotalSaveNumber(int)", "signalSaveThreadRunningChanged(bool)"},
     {}},
    {&CameraManager::staticMetaObject,
     {"signalUpdateRotateDegree(int)"},
     {"slotSetMirrorRotate(int)"}},
    {&CameraList::staticMetaObject,
     {"signalUpdateCameraList()"},
     {}},
    {&CameraConfigManager::staticMetaObject,
     {"signalPreviewStateChanged()"},
     {}},
    {&CoverConfigManager::staticMetaObject,
     {"signalSetCoverFrameVisible(bool)", "signalFinishFillCover(QRect)",
      "signalSetOpacity(float)"},
     {"slotStopManualCover()", "slotManualCoverFinished(QRect)",
      "slotScaleFactorChanged(double)"}},
    {&ROIManager::staticMetaObject,
     {"signalSetROIFrameVisible(bool,bool)"},
     {"slotStopManualROI()", "slotScaleFactorChanged(double)"}},
    {&MeasureConfigManager::staticMetaObject,
     {"signalUpdateScaleUI()", "signalMeasureGraphicsListChanged()"},
     {}},
    {&AutoCountManager::staticMetaObject,
     {"signalAutoCountDataChanged()"},
     {}},
    {&SpectrumUIManager::staticMetaObject,
     {"signalDisplayModeChange()", "signalDisplayModePropertyChange()",
      "SignalSpectralPropertyChanged()", "SignalConversationFormulaChanged()",
      "SignalZoomAutoFlagChange()", "SignalAssitanceFocusClose()", "SignalFocusOnChanged(bool)",
      "SignalFocusCrossLineFlagChanged(bool)", "SignalMultiTrackOnFlagChanged()",
      "SignalFVBOnFlagChanged(bool)", "SignalFVBClose()", "SignalFVBModeAll()",
      "SignalFVBManualFlagChanged(bool)", "SignalFVBSpeedingFlagChanged(bool)",
      "SignalTopBottomChanged(QPointF, QPointF)"},
     {}},
    {&SpectrumManager::staticMetaObject,
     {"SignalSpectralineFVB()", "SignalSpectralineAutoDetectFinish()", "SignalUpdateFVB(void *)",
      "SignalUpdateMultiTrack(void*)"},
     {}},
    {&DisplayModeManager::staticMetaObject,
     {"SignalChangeHShowValueRange(qreal, qreal)", "SignalChangeVShowValueRange(qreal, qreal)",
      "SignalImageChangeHShowValueRange(qreal, qreal)",
      "SignalImageChangeVShowValueRange(qreal, qreal)"},
     {}},
    {&UseAreaManager::staticMetaObject,
     {"signalUpdateUseArea()", "signalSpectrumUIUpdate()"},
     {}},
    {&ThumbnailList::staticMetaObject,
     {"sglShowFileThumbnail(QString)", "signalSetFileView()", "signalCompare()",
      "signalSwitchToPreviousView()", "signalRename(QObject*,QString)",
      "signalCloseAllOpenedImage()", "signalCloseImage(QObject*)",
      "signalSetImageChecked(QObject*,bool)", "signalSetAllImageChecked(bool)",
      "signalOpenImage(QString,QObject*)"},
     {"slotSetSelectButtonVisible(bool)", "slotAddThumbnail(QImage)",
      "slotAddToThumbnailList(QString)"}},
    {&CompareSaver::staticMetaObject,
     {"signalSaveCompare()"},
     {}}
};

} // namespace

class TestContractSignatures : public GuardedTest
{
    Q_OBJECT

private slots:
    void SignalCanBeConnectedByItsSpelling_data() { AddRows(&Contract::signalNames); }
    void SignalCanBeConnectedByItsSpelling()
    {
        const QMetaMethod method = MethodOfRow();
        QVERIFY2(method.isValid(), QTest::currentDataTag());
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
    }

    void SlotCanBeConnectedByItsSpelling_data() { AddRows(&Contract::slotNames); }
    void SlotCanBeConnectedByItsSpelling()
    {
        const QMetaMethod method = MethodOfRow();
        QVERIFY2(method.isValid(), QTest::currentDataTag());
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
    }

private:
    static void AddRows(QVector<const char *> Contract::*names)
    {
        QTest::addColumn<const QMetaObject *>("service");
        QTest::addColumn<QByteArray>("signature");
        for (const Contract &contract : contracts) {
            for (const char *name : contract.*names)
                QTest::addRow("%s::%s", contract.service->className(), name)
                    << contract.service << QByteArray(name);
        }
    }

    /// Found as connect() finds it: after normalization.
    static QMetaMethod MethodOfRow()
    {
        QFETCH(const QMetaObject *, service);
        QFETCH(QByteArray, signature);
        return service->method(service->indexOfMethod(QMetaObject::normalizedSignature(signature)));
    }
};


GUARDED_TEST_MAIN(TestContractSignatures)
#include "tst_contractsignatures.moc"
