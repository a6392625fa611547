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

const Service services[] = {
    {"AdvancedProcessManager", [] { AdvancedProcessManager::GetInstance(); }, [] { FakeAdvancedProcessManager first; FakeAdvancedProcessManager second; }},
    {"AlgSpectrometer", [] { AlgSpectrometer::GetInstance(); }, [] { FakeAlgSpectrometer first; FakeAlgSpectrometer second; }},
    {"AutoCountManager", [] { AutoCountManager::GetInstance(); }, [] { FakeAutoCountManager first; FakeAutoCountManager second; }},
    {"CameraConfigManager", [] { CameraConfigManager::GetInstance(); }, [] { FakeCameraConfigManager first; FakeCameraConfigManager second; }},
    {"CameraNameManager", [] { CameraNameManager::GetInstance(); }, [] { FakeCameraNameManager first; FakeCameraNameManager second; }},
    {"CoverConfigManager", [] { CoverConfigManager::GetInstance(); }, [] { FakeCoverConfigManager first; FakeCoverConfigManager second; }},
    {"DisplayModeUIManager", [] { DisplayModeUIManager::GetInstance(); }, [] { FakeDisplayModeUIManager first; FakeDisplayModeUIManager second; }},
    {"FileSaveManager", [] { FileSaveManager::GetInstance(); }, [] { FakeFileSaveManager first; FakeFileSaveManager second; }},
    {"FluorescenceSynthesisManager", [] { FluorescenceSynthesisManager::GetInstance(); }, [] { FakeFluorescenceSynthesisManager first; FakeFluorescenceSynthesisManager second; }},
    {"FrameManager", [] { FrameManager::GetInstance(); }, [] { FakeFrameManager first; FakeFrameManager second; }},
    {"FrameProcessManager", [] { FrameProcessManager::GetInstance(); }, [] { FakeFrameProcessManager first; FakeFrameProcessManager second; }},
    {"FrameSaveManager", [] { FrameSaveManager::GetInstance(); }, [] { FakeFrameSaveManager first; FakeFrameSaveManager second; }},
    {"GlobalManager", [] { GlobalManager::GetInstance(); }, [] { FakeGlobalManager first; FakeGlobalManager second; }},
    {"HistogramCalculateManager", [] { HistogramCalculateManager::GetInstance(); }, [] { FakeHistogramCalculateManager first; FakeHistogramCalculateManager second; }},
    {"IntensityManager", [] { IntensityManager::GetInstance(); }, [] { FakeIntensityManager first; FakeIntensityManager second; }},
    {"MeasureConfigManager", [] { MeasureConfigManager::GetInstance(); }, [] { FakeMeasureConfigManager first; FakeMeasureConfigManager second; }},
    {"PixelInfoManager", [] { PixelInfoManager::GetInstance(); }, [] { FakePixelInfoManager first; FakePixelInfoManager second; }},
    {"PreviewManager", [] { PreviewManager::GetInstance(); }, [] { FakePreviewManager first; FakePreviewManager second; }},
    {"ROIManager", [] { ROIManager::GetInstance(); }, [] { FakeROIManager first; FakeROIManager second; }},
    {"SpectrumManager", [] { SpectrumManager::GetInstance(); }, [] { FakeSpectrumManager first; FakeSpectrumManager second; }},
    {"SpectrumUIManager", [] { SpectrumUIManager::GetInstance(); }, [] { FakeSpectrumUIManager first; FakeSpectrumUIManager second; }},
    {"ThumbnailList", [] { ThumbnailList::GetInstance(); }, [] { FakeThumbnailList first; FakeThumbnailList second; }},
    {"UIConfigManager", [] { UIConfigManager::GetInstance(); }, [] { FakeUIConfigManager first; FakeUIConfigManager second; }},
    {"UseAreaManager", [] { UseAreaManager::GetInstance(); }, [] { FakeUseAreaManager first; FakeUseAreaManager second; }},
    {"CameraMainManager", [] { CameraMainManager::GetInstance(); },
     [] { FakeCameraMainManager first; FakeCameraMainManager second; }},
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
