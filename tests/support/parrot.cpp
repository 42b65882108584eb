// A program for tests to run: repeats its input, and complains about its arguments, one to a line.
#include <iostream>

int main(int count, char** arguments)
{
    std::ios::sync_with_stdio(false);
    for (int i = 1; i < count; ++i) {
        std::cerr << arguments[i] << '\n';
    }
    std::cout << std::cin.rdbuf();
}
