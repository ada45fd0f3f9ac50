// Stands for the libraries of other programs. All that is asked of them is that they can be loaded,
// and of PhatPad's that it has this function; nothing calls it.
extern "C" void PhatPad_CreateView() {}
