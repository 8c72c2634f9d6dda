// Carries a precompiled header that all tests of one kind share, and nothing else.
int main() {}
