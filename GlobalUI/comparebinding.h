// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class CameraStackedWidget;
class CompareFrame;
class ImageStackedWidget;

/// Carries out who shows what while comparing: lends the picture frames of the two view stacks to
/// the compare frame, and gives them back. Made for one view switch; borrows all three widgets.
class CompareBinding
{
public:
    CompareBinding(CompareFrame *compareFrame, CameraStackedWidget *cameraStack,
                   ImageStackedWidget *imageStack);

    /// `view` is the ViewCode that was switched to.
    void SwitchTo(int view);

private:
    void ShowCameraCompare();
    void ShowImageCompare();
    void Leave();
    bool IsLeftShowingCamera() const;

    CompareFrame *m_compareFrame;
    CameraStackedWidget *m_cameraStack;
    ImageStackedWidget *m_imageStack;
};
