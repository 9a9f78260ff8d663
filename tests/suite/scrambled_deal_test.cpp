#include "tests/suite/suite_fixture.h"
