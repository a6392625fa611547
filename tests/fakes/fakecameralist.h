// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "cameralist.h"

class FakeCameraList : public CameraList
{
public:

};
