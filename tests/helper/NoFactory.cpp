// A library that lacks what the client looks for.
extern "C" __attribute__((visibility("default"))) int SomethingElse() { return 0; }
