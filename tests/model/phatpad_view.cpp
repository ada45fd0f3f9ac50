// Stands for the library by which PhatPad shows its notes.
extern "C" __declspec(dllexport) void PhatPad_CreateView() {}
