// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules.h"

LeftPage ViewRules::PageOf(ViewCode view)
{
    switch (view) {
    case CameraView:
    case CameraCompareView:
        return CameraControlPage;
    case ImageView:
    case ImageCompareView:
        return ImageControlPage;
    case FileView:
        return FileSystemPage;
    }
    return CameraControlPage;
}

ViewCode ViewRules::AfterCompareCommand(ViewCode view)
{
    switch (view) {
    case CameraView:
        return CameraCompareView;
    case ImageView:
        return ImageCompareView;
    case CameraCompareView:
        return CameraView;
    case ImageCompareView:
        return ImageView;
    case FileView:
        return FileView;
    }
    return view;
}

bool ViewRules::ShowsCamera(ViewCode view)
{
    return view == CameraView || view == CameraCompareView;
}

bool ViewRules::IsComparison(ViewCode view)
{
    return view == CameraCompareView || view == ImageCompareView;
}
