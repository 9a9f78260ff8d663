// What nearly every test of the real machine reads, read once for all of them.
#pragma once

#include "cmake/precompiled/logic.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
