#pragma once

#include "tools/kelvane/contentkind.h"
