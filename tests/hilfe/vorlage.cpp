// Carries the precompiled header that all window tests share, and nothing else.
int main() {}
