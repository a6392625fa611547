// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

/// Ids of the notifications that pass through the observer hub.
enum NotificationId {
    NotifyRaiseCalibrationTable = 12, ///< bring the bottom page "Calibration Table" to the front
    NotifyRaiseClassCounting = 15,    ///< bring the bottom page "Class Counting" to the front
    NotifyFullScreen = 64,            ///< full screen requested; the host handles it
    NotifyBlackBackground = 65,       ///< black background requested; the host handles it
    NotifyRefreshOverlays = 71,       ///< refresh the overlays of both image stacks
    NotifyFVBBandChanged = 90         ///< the top and bottom rows of the FVB band changed
};

/// Receives the notifications of the observer hub, always on the GUI thread.
class GLOBALUI_SERVICES_EXPORT LxObserver
{
public:
    virtual ~LxObserver();

    /// `data` belongs to the sender; use it during the call only.
    virtual void UpdateObserver(int id, void *data) = 0;
};

/// Adds an observer; one that is attached already stays attached once. Any thread.
GLOBALUI_SERVICES_EXPORT void GlobalAttachObserver(LxObserver *observer);

/// Removes an observer, also while a notification is being delivered: it is not called any more.
/// An observer that goes without detaching is taken out by its destructor. Any thread, but an
/// observer that lives in the GUI thread must be detached there.
GLOBALUI_SERVICES_EXPORT void GlobalDetachObserver(LxObserver *observer);

/// Delivers to every observer that was attached when the delivery began and still is when its turn
/// comes. On the GUI thread the call returns after the delivery. From any other thread it returns at
/// once and the GUI thread delivers with its next events: `data` must live until then.
GLOBALUI_SERVICES_EXPORT void GlobalNotifyObserver(int id, void *data);
