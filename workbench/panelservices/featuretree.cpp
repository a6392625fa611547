// SPDX-License-Identifier: GPL-3.0-or-later
#include "featuretree.h"

namespace {
FeatureTree *s_instance = nullptr;
}

FeatureTree::FeatureTree(QObject *parent)
    : QObject(parent)
{
    s_instance = this;
}

FeatureTree::~FeatureTree()
{
    if (s_instance == this)
        s_instance = nullptr;
}

FeatureTree *FeatureTree::GetInstance()
{
    return s_instance;
}
