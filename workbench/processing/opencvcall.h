// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <opencv2/core.hpp>

#include <new>

/// Calls `work`, which uses OpenCV, and tells in `fault` what OpenCV complains of; a lack of memory is std::bad_alloc, as
/// everywhere. All is done in the calling thread: the other processors are the camera's.
template <typename Work>
void CallOpenCv(QString &fault, Work work)
{
    cv::setNumThreads(0);
    try {
        work();
    } catch (const cv::Exception &exception) {
        if (exception.code == cv::Error::StsNoMem)
            throw std::bad_alloc();
        fault = QString::fromStdString(exception.err);
    }
}
