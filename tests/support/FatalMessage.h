#pragma once

#include "support/MessageCapture.h"
