// The table of names beside a model, with failing allocations, collisions and moved records.
#include <array>
#include <cstring>
#include <deque>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <gtest/gtest.h>

#include "frame/name_table.hpp"
#include "support/allocation.hpp"

namespace kor {
namespace {

using testing::AllocationWatch;

struct Table : KorNameTable {
    explicit Table(Integer expected) { EXPECT_EQ(x04fag(this, expected), kTableGood); }
    Table(const Table &) = delete;
    ~Table() { x04fah(this); }
};

// Names that live as long as the test: the table does not copy them.
const char *name_of(int i)
{
    static std::deque<std::string> names;
    while (static_cast<int>(names.size()) <= i) names.push_back("ROW" + std::to_string(names.size()));
    return names[static_cast<std::size_t>(i)].c_str();
}

bool is_prime(Integer n)
{
    for (Integer d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return n > 1;
}

TEST(NameTable, BucketsAreTheNextPrimeFromFourThirds)
{
    for (const Integer expected : {-2000000000, -1, 0, 1, 21, 22}) EXPECT_EQ(Table{expected}.nbuckets, 29) << expected;
    for (const Integer expected : {23, 24, 100, 1000, 123456}) {
        const Table table{expected};
        const Integer least = 4 * expected / 3;
        Integer prime = least;
        while (!is_prime(prime)) ++prime;
        EXPECT_EQ(table.nbuckets, prime) << expected;
        EXPECT_EQ(table.block_size, prime);
        EXPECT_EQ(table.capacity, prime);
        EXPECT_EQ(table.used, 0);
        EXPECT_EQ(table.blocks_capacity, 10);
        EXPECT_EQ(table.nblocks, 0);
    }
    KorNameTable too_large;
    EXPECT_EQ(x04fag(&too_large, 2000000000), kTableNoMemory);
    x04fah(&too_large);
}

// Both ways of adding, mixed, far beyond the table's size: many blocks, and more than one list of blocks.
TEST(NameTable, GrowsLikeTheModel)
{
    Table table{5};
    std::unordered_map<std::string, std::intptr_t> model;
    std::mt19937 random{20};
    Integer cells = 0;
    for (int step = 0; step < 3000; ++step) {
        const int i = static_cast<int>(random() % 2000);
        const char *name = name_of(i);
        const std::intptr_t value = step + 1;
        const auto known = model.find(name);
        ASSERT_EQ(x04faj(&table, name), known == model.end() ? 0 : known->second);
        Integer status = 0;
        if (known == model.end() && random() % 2 == 0) {
            const Integer before = table.used;
            x04fak(&table, value, name, &status);
            cells += table.used - before;
            model[name] = value;
        } else {
            // The old value for a name that is there, and it stays; 0 for a new one, always in a further cell.
            ASSERT_EQ(x04fal(&table, value, name, &status), known == model.end() ? 0 : known->second);
            cells += model.try_emplace(name, value).second;
        }
        ASSERT_EQ(status, kTableGood);
        ASSERT_EQ(table.used, cells);
    }
    for (int i = 0; i < 2000; ++i) {
        const auto known = model.find(name_of(i));
        EXPECT_EQ(x04faj(&table, name_of(i)), known == model.end() ? 0 : known->second);
    }
    EXPECT_GT(table.nblocks, 10);
    EXPECT_EQ(table.blocks_capacity % 10, 0);
    EXPECT_EQ(table.capacity, table.block_size * (table.nblocks + 1));
    EXPECT_LE(table.used, table.capacity);
}

TEST(NameTable, HeadsAreForX04fakAlone)
{
    Table table{0};
    Integer status = 0;
    EXPECT_EQ(x04fal(&table, 7, "NAME", &status), 0);
    EXPECT_EQ(table.used, 1);
    x04fak(&table, 8, "OTHER", &status);
    EXPECT_EQ(table.used, 1);
    x04fak(&table, 9, "OTHER", &status); // does not look for an equal name: the first one added is found
    EXPECT_EQ(table.used, 2);
    EXPECT_EQ(x04faj(&table, "OTHER"), 8);
    EXPECT_EQ(x04faj(&table, ""), 0);
    EXPECT_EQ(x04fal(&table, 10, "", &status), 0); // an empty name is a name, though empty cells share it
    EXPECT_EQ(x04faj(&table, ""), 10);
    EXPECT_EQ(x04fal(&table, 11, "", &status), 10);
}

// The hash is h = 16 h + c with its top four bits folded back, modulo the number of buckets, in 32 bits and on bytes.
TEST(NameTable, NamesGoToTheirBuckets)
{
    for (const char *name : {"", "A", "OBJ", "CONSTRAINT", "abcdefghijklmnop", "\xff\xfe\xfd\xfc\xfb\xfa\xf9\xf8"}) {
        std::uint64_t h = 0;
        for (const char *s = name; *s != '\0'; ++s) {
            h = (16 * h + static_cast<unsigned char>(*s)) & 0xffffffffu;
            if (const std::uint64_t g = h & 0xf0000000u) h = (h ^ (g >> 24)) & ~g;
        }
        Table table{0};
        Integer status = 0;
        x04fak(&table, 1, name, &status);
        EXPECT_EQ(table.buckets[h % 29].value, 1) << name;
    }
}

TEST(NameTable, RecordsMayMove)
{
    struct RowRecord {
        double data;
        char name[12];
    };
    constexpr int kRows = 200;
    std::vector<RowRecord> rows(kRows);
    for (int i = 0; i < kRows; ++i) std::snprintf(rows[i].name, sizeof rows[i].name, "R%d", i * i);
    Table table{20};
    Integer status = 0;
    for (int i = 0; i < kRows; ++i) {
        const auto value = reinterpret_cast<std::intptr_t>(&rows[i]);
        if (i % 2 == 0)
            x04fak(&table, value, rows[i].name, &status);
        else
            x04fal(&table, value, rows[i].name, &status);
    }

    std::vector<RowRecord> moved = rows;
    x04fam(&table, reinterpret_cast<std::intptr_t>(rows.data()), reinterpret_cast<std::intptr_t>(moved.data()),
           offsetof(RowRecord, name));
    for (RowRecord &row : rows) std::memset(row.name, 'x', sizeof row.name - 1); // the old records are not looked at
    for (int i = 0; i < kRows; ++i)
        EXPECT_EQ(x04faj(&table, moved[i].name), reinterpret_cast<std::intptr_t>(&moved[i])) << moved[i].name;
}

TEST(NameTable, EveryAllocationMayFail)
{
    constexpr int kNames = 400;
    bool failed = true;
    for (long k = 1; failed; ++k) {
        ASSERT_LT(k, 100);
        KorNameTable table;
        std::array<bool, kNames> stored{};
        long live = 0;
        {
            const AllocationWatch watch{k};
            failed = x04fag(&table, 0) != kTableGood;
            for (int i = 0; !failed && i < kNames; ++i) {
                Integer status = 0;
                if (i % 3 == 0)
                    x04fak(&table, i + 1, name_of(i), &status);
                else
                    x04fal(&table, i + 1, name_of(i), &status);
                stored[i] = status == kTableGood;
                failed = !stored[i];
                if (failed) {
                    EXPECT_EQ(status, kTableNoMemory);
                    // The table stands as it was, and the next try succeeds.
                    for (int j = 0; j < kNames; ++j) EXPECT_EQ(x04faj(&table, name_of(j)), stored[j] ? j + 1 : 0);
                    EXPECT_EQ(x04fal(&table, i + 1, name_of(i), &status), 0);
                    EXPECT_EQ(status, kTableGood);
                    EXPECT_EQ(x04faj(&table, name_of(i)), i + 1);
                }
            }
            x04fah(&table);
            live = AllocationWatch::live();
        }
        EXPECT_EQ(live, 0) << "allocation " << k;
        EXPECT_TRUE(table.buckets == nullptr && table.nbuckets == 0 && table.used == 0 && table.nblocks == 0);
    }
}

} // namespace
} // namespace kor
