// The header of the exported helpers, as a host that is written in C sees it.

#include "tradeConfig/platform/HostPlatform.h"

typedef struct Helpers {
    const char* (*homePath)(void);
    void (*hideCaption)(void* view);
    const char* (*version)(void);
    int (*versionNumber)(void);
    const char* (*diskId)(void);
    const char* (*systemUuid)(void);
} Helpers;

extern const Helpers helpers;
const Helpers helpers = {
    ApplicationHomePath,         hideWindowCaptionBar, GetMainExecutableVersion,
    GetMainExecutableVersionNum, GetDiskId,            GetSystemUuid,
};
