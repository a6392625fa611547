// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakecameramainmanager.h"
#include "fakeservices.h"
#include "gpudrawframe.h"
#include "rawcameraframe.h"

class DrawViewBase;

/// The module's live view in a window of its own, drawn by the CPU or the GPU, and the services that it needs.
class ModuleView
{
public:
    static constexpr QSize HostSize = QSize(1200, 900);

    enum class Drawing { Cpu, Gpu };

    explicit ModuleView(Drawing drawing);

    DrawViewBase *View();
    /// Announces a frame as the preview does, and returns when it is painted. Rows of `frame` are packed.
    void Show(const QImage &frame);

private:
    FakeServices m_services;
    FakeCameraMainManager m_camera;
    RawCameraFrame m_record = {};
    GPUDrawFrame m_frame{nullptr};
};
