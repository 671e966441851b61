// Keeps modules loaded to the end of the process. The leak checker names memory by the module that asked for it, and
// cannot once a driver or plug-in of the system was unloaded; scripts/ctest-under-xvfb preloads this.
extern "C" __attribute__((visibility("default"))) int dlclose(void*)
{
    return 0;
}
