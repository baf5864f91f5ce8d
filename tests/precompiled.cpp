/// Carries the precompiled header, and does nothing.
int main() {}
