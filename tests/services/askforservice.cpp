// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecameramainmanager.h"
#include "fakeservices.h"

#include <QApplication>

#include <cstring>
#include <sys/resource.h>

namespace {

struct Service
{
    const char *name;
    void (*ask)();          ///< while none is installed
    void (*installTwice)(); ///< a second one beside the first
};

template<class ServiceClass, class FakeClass>
Service Row(const char *name)
{
    return {name, [] { ServiceClass::GetInstance(); }, [] { FakeClass first; FakeClass second; }};
}

const Service services[] = {
    Row<AdvancedProcessManager, FakeAdvancedProcessManager>("AdvancedProcessManager"),
    Row<AlgSpectrometer, FakeAlgSpectrometer>("AlgSpectrometer"),
    Row<AutoCountManager, FakeAutoCountManager>("AutoCountManager"),
    Row<CameraConfigManager, FakeCameraConfigManager>("CameraConfigManager"),
    Row<CameraNameManager, FakeCameraNameManager>("CameraNameManager"),
    Row<CoverConfigManager, FakeCoverConfigManager>("CoverConfigManager"),
    Row<DisplayModeUIManager, FakeDisplayModeUIManager>("DisplayModeUIManager"),
    Row<FileSaveManager, FakeFileSaveManager>("FileSaveManager"),
    Row<FluorescenceSynthesisManager, FakeFluorescenceSynthesisManager>("FluorescenceSynthesisManager"),
    Row<FrameManager, FakeFrameManager>("FrameManager"),
    Row<FrameProcessManager, FakeFrameProcessManager>("FrameProcessManager"),
    Row<FrameSaveManager, FakeFrameSaveManager>("FrameSaveManager"),
    Row<GlobalManager, FakeGlobalManager>("GlobalManager"),
    Row<HistogramCalculateManager, FakeHistogramCalculateManager>("HistogramCalculateManager"),
    Row<IntensityManager, FakeIntensityManager>("IntensityManager"),
    Row<MeasureConfigManager, FakeMeasureConfigManager>("MeasureConfigManager"),
    Row<PixelInfoManager, FakePixelInfoManager>("PixelInfoManager"),
    Row<PreviewManager, FakePreviewManager>("PreviewManager"),
    Row<ROIManager, FakeROIManager>("ROIManager"),
    Row<SpectrumManager, FakeSpectrumManager>("SpectrumManager"),
    Row<SpectrumUIManager, FakeSpectrumUIManager>("SpectrumUIManager"),
    Row<ThumbnailList, FakeThumbnailList>("ThumbnailList"),
    Row<UIConfigManager, FakeUIConfigManager>("UIConfigManager"),
    Row<UseAreaManager, FakeUseAreaManager>("UseAreaManager"),
    Row<CameraMainManager, FakeCameraMainManager>("CameraMainManager"),
};

} // namespace

/// askforservice <service> [twice]: asks for a service that is not installed, or installs it twice.
/// Ends with 0 when the program may go on.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const rlimit noCoreFile = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile); // ending badly is what it is for
    for (const Service &service : services) {
        if (argc < 2 || strcmp(argv[1], service.name) != 0)
            continue;
        if (argc > 2)
            service.installTwice();
        else
            service.ask();
        return 0;
    }
    return 2; // no such service
}
