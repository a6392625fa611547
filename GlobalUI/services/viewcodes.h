// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the centre of the main window shows. UIConfigManager keeps the current code.
enum ViewCode {
    CameraView = 0,        ///< live camera page
    ImageView = 1,         ///< opened image file page
    FileView = 2,          ///< file browser
    CameraCompareView = 3, ///< compare frame inside the camera page
    ImageCompareView = 4   ///< compare frame inside the image page
};

/// The zoom commands of tool bars and views.
enum ZoomType { ZoomTypeIn = 0, ZoomTypeOut = 1, ZoomTypeOneToOne = 2, ZoomTypeFit = 3 };

/// The orientation commands of the view tool bar.
enum RotateType { RotateBy90 = 0, FlipHorizontal = 1, FlipVertical = 2 };

/// Page indices of the left stack, as UIManagerBase::UpdateBottomTabWidget() takes them.
enum LeftPage { CameraControlPage = 0, ImageControlPage = 1, FileSystemPage = 2 };
