// A photograph compressed by its singular values.
//
// A picture is a matrix A of grey values. Cut off after k terms, A = sum of s_i q_i p_i' is the best approximation of rank
// k that there is, in the Euclidean norm and in the spectral norm (Eckart and Young), and its error is told by the values
// that were cut off: s_{k+1} in the one, the root of the sum of their squares in the other. It takes k (m + n + 1) numbers
// in the place of m n.
//
//     image_svd [k picture.pgm]      writes the picture of rank k beside the table
#include <kor/f02.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

namespace {

struct Picture {
    Integer height = 0, width = 0;
    std::vector<double> grey; // row by row, 0 is black, 255 is white
};

Picture read(const char *name)
{
    std::ifstream file{name};
    std::string kind;
    Picture picture;
    if (!(file >> kind) || kind != "P2") {
        std::cout << name << " is not here: please run this program in the folder examples\n";
        std::exit(EXIT_FAILURE);
    }
    while ((file >> std::ws).peek() == '#') file.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    double white;
    file >> picture.width >> picture.height >> white;
    picture.grey.resize(static_cast<std::size_t>(picture.width) * picture.height);
    for (double &grey : picture.grey) file >> grey;
    return picture;
}

void write(const char *name, const Picture &picture)
{
    std::ofstream file{name};
    file << "P2\n" << picture.width << ' ' << picture.height << "\n255\n";
    for (const double grey : picture.grey) file << std::lround(std::clamp(grey, 0.0, 255.0)) << '\n';
}

} // namespace

int main(int count, char *arguments[])
{
    const Picture picture = read("data/hopper.pgm");
    const Integer m = picture.height, n = picture.width; // m >= n: Q comes in the place of A
    std::vector<double> q = picture.grey, pt(static_cast<std::size_t>(n) * n), s(n), e(n);
    Integer iter, failinfo;
    KorError fail{};
    f02wec(m, n, q.data(), n, 0, nullptr, 0, 1, nullptr, 0, s.data(), 1, pt.data(), n, &iter, e.data(), &failinfo,
           &fail);
    if (fail.code != NE_NOERROR) {
        std::cout << fail.message << '\n';
        return EXIT_FAILURE;
    }

    Picture approximation = picture;
    std::fill(approximation.grey.begin(), approximation.grey.end(), 0.0);
    const int wanted = count > 2 ? std::atoi(arguments[1]) : 0;
    std::printf("%d by %d pixels, grey values 0 to 255\n", static_cast<int>(m), static_cast<int>(n));
    std::printf("rank  numbers kept  singular value  error a pixel  told by the rest\n");
    for (Integer k = 1; k <= n; ++k) {
        double error = 0.0, rest = 0.0;
        for (Integer i = 0; i < m; ++i)
            for (Integer j = 0; j < n; ++j) {
                const std::size_t pixel = static_cast<std::size_t>(i) * n + j;
                double &grey = approximation.grey[pixel];
                grey += s[k - 1] * q[pixel - j + k - 1] * pt[static_cast<std::size_t>(k - 1) * n + j];
                error += (grey - picture.grey[pixel]) * (grey - picture.grey[pixel]);
            }
        for (Integer l = k; l < n; ++l) rest += s[l] * s[l];
        if (k == wanted) write(arguments[2], approximation);
        if ((k & (k - 1)) != 0) continue;
        std::printf("%4d     %6.1f %%       %9.3f        %7.4f           %7.4f\n", static_cast<int>(k),
                    100.0 * k * (m + n + 1) / (m * n), s[k - 1], std::sqrt(error / (m * n)), std::sqrt(rest / (m * n)));
    }
    double error = 0.0;
    for (std::size_t i = 0; i < picture.grey.size(); ++i)
        error = std::max(error, std::fabs(approximation.grey[i] - picture.grey[i]));
    std::printf("With all terms the greatest error is %s 1e-11.\n", error < 1e-11 ? "below" : "above");
    return EXIT_SUCCESS;
}
