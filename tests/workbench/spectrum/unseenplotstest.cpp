// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "litframes.h"

#include <QSignalSpy>

using namespace LitFrames;

/// A file is on the screen, whose curve may run along the other side: spectra of the camera are made nevertheless.
class UnseenPlotsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theyGetTheirLinesWhenTheyAreSeenAgain()
    {
        SpectrumPipeline pipeline;
        SpectrumRecipe recipe = Binning();
        recipe.hasTracks = true;
        recipe.tracks.push_back({20, 40});
        pipeline.SetRecipe(recipe);
        pipeline.SetPlotsSeen(false);
        QSignalSpy binned(&pipeline, SIGNAL(SignalUpdateFVB(void *)));
        QSignalSpy tracks(&pipeline, SIGNAL(SignalUpdateMultiTrack(void *)));
        pipeline.OnFrame(Frame(1));
        QTRY_COMPARE(pipeline.Shown().frameId, quint64(1));
        QCOMPARE(pipeline.Shown().corrected.Count(), width);
        QCOMPARE(binned.count() + tracks.count(), 0);
        pipeline.SetPlotsSeen(true);
        pipeline.ShowAgain();
        QTRY_COMPARE(binned.count(), 1);
        QCOMPARE(tracks.count(), 1);
    }
};

GUARDED_TEST_MAIN(UnseenPlotsTest)
#include "unseenplotstest.moc"
