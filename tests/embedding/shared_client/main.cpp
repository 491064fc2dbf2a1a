#include "client.h"

int main() { return ContentOf(R"(kavrix://resource/{"content":"Jam"}.trafficBubble)") == "Jam" ? 0 : 1; }
