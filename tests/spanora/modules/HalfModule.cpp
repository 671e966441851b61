// A library that begins as a module does and never ends.
extern "C" __attribute__((visibility("default"))) void spnInitModule() {}
