// The Subbotin kernels and their dispatch table: 8 blocks of 7 boundary slots, of which those
// for the four pairs of end conditions are taken.
#pragma once
#include "quadratic_subbotin/subbotin.hpp"

namespace ork::df {

using QuadraticKernel = int(const Task*);

// The form of the sub-grid is read from the task: it chooses the points, not the code.
template <class T, class Y, class Grid, Boundary boundary>
int subbotin(const Task* task) {
  return Subbotin<T, Y, Grid>::build(task, boundary);
}

template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsNoUniformGrid1st1st =
    subbotin<T, YCols, NoUniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsNoUniformGrid1st2nd =
    subbotin<T, YCols, NoUniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsNoUniformGrid2nd1st =
    subbotin<T, YCols, NoUniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsNoUniformGrid2nd2nd =
    subbotin<T, YCols, NoUniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsUniformGrid1st1st =
    subbotin<T, YCols, UniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsUniformGrid1st2nd =
    subbotin<T, YCols, UniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsUniformGrid2nd1st =
    subbotin<T, YCols, UniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYColsUniformGrid2nd2nd =
    subbotin<T, YCols, UniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid1st1st =
    subbotin<T, YRows, NoUniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid1st2nd =
    subbotin<T, YRows, NoUniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid2nd1st =
    subbotin<T, YRows, NoUniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid2nd2nd =
    subbotin<T, YRows, NoUniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsUniformGrid1st1st =
    subbotin<T, YRows, UniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsUniformGrid1st2nd =
    subbotin<T, YRows, UniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsUniformGrid2nd1st =
    subbotin<T, YRows, UniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbNoUniformSubgridYRowsUniformGrid2nd2nd =
    subbotin<T, YRows, UniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsNoUniformGrid1st1st =
    subbotin<T, YCols, NoUniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsNoUniformGrid1st2nd =
    subbotin<T, YCols, NoUniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsNoUniformGrid2nd1st =
    subbotin<T, YCols, NoUniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsNoUniformGrid2nd2nd =
    subbotin<T, YCols, NoUniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsUniformGrid1st1st =
    subbotin<T, YCols, UniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsUniformGrid1st2nd =
    subbotin<T, YCols, UniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsUniformGrid2nd1st =
    subbotin<T, YCols, UniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYColsUniformGrid2nd2nd =
    subbotin<T, YCols, UniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsNoUniformGrid1st1st =
    subbotin<T, YRows, NoUniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsNoUniformGrid1st2nd =
    subbotin<T, YRows, NoUniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsNoUniformGrid2nd1st =
    subbotin<T, YRows, NoUniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsNoUniformGrid2nd2nd =
    subbotin<T, YRows, NoUniformGrid, second_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsUniformGrid1st1st =
    subbotin<T, YRows, UniformGrid, first_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsUniformGrid1st2nd =
    subbotin<T, YRows, UniformGrid, first_second>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsUniformGrid2nd1st =
    subbotin<T, YRows, UniformGrid, second_first>;
template <class T>
inline constexpr QuadraticKernel* _v1DQSSubbUniformSubgridYRowsUniformGrid2nd2nd =
    subbotin<T, YRows, UniformGrid, second_second>;

template <class T>
inline constexpr QuadraticKernel* subbotin_dispatch[] = {
    // NoUniformSubgrid YCols NoUniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbNoUniformSubgridYColsNoUniformGrid1st1st<T>,
    _v1DQSSubbNoUniformSubgridYColsNoUniformGrid1st2nd<T>,
    _v1DQSSubbNoUniformSubgridYColsNoUniformGrid2nd1st<T>,
    _v1DQSSubbNoUniformSubgridYColsNoUniformGrid2nd2nd<T>,
    nullptr,
    // NoUniformSubgrid YCols UniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbNoUniformSubgridYColsUniformGrid1st1st<T>,
    _v1DQSSubbNoUniformSubgridYColsUniformGrid1st2nd<T>,
    _v1DQSSubbNoUniformSubgridYColsUniformGrid2nd1st<T>,
    _v1DQSSubbNoUniformSubgridYColsUniformGrid2nd2nd<T>,
    nullptr,
    // NoUniformSubgrid YRows NoUniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid1st1st<T>,
    _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid1st2nd<T>,
    _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid2nd1st<T>,
    _v1DQSSubbNoUniformSubgridYRowsNoUniformGrid2nd2nd<T>,
    nullptr,
    // NoUniformSubgrid YRows UniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbNoUniformSubgridYRowsUniformGrid1st1st<T>,
    _v1DQSSubbNoUniformSubgridYRowsUniformGrid1st2nd<T>,
    _v1DQSSubbNoUniformSubgridYRowsUniformGrid2nd1st<T>,
    _v1DQSSubbNoUniformSubgridYRowsUniformGrid2nd2nd<T>,
    nullptr,
    // UniformSubgrid YCols NoUniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbUniformSubgridYColsNoUniformGrid1st1st<T>,
    _v1DQSSubbUniformSubgridYColsNoUniformGrid1st2nd<T>,
    _v1DQSSubbUniformSubgridYColsNoUniformGrid2nd1st<T>,
    _v1DQSSubbUniformSubgridYColsNoUniformGrid2nd2nd<T>,
    nullptr,
    // UniformSubgrid YCols UniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbUniformSubgridYColsUniformGrid1st1st<T>,
    _v1DQSSubbUniformSubgridYColsUniformGrid1st2nd<T>,
    _v1DQSSubbUniformSubgridYColsUniformGrid2nd1st<T>,
    _v1DQSSubbUniformSubgridYColsUniformGrid2nd2nd<T>,
    nullptr,
    // UniformSubgrid YRows NoUniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbUniformSubgridYRowsNoUniformGrid1st1st<T>,
    _v1DQSSubbUniformSubgridYRowsNoUniformGrid1st2nd<T>,
    _v1DQSSubbUniformSubgridYRowsNoUniformGrid2nd1st<T>,
    _v1DQSSubbUniformSubgridYRowsNoUniformGrid2nd2nd<T>,
    nullptr,
    // UniformSubgrid YRows UniformGrid
    nullptr,
    nullptr,
    _v1DQSSubbUniformSubgridYRowsUniformGrid1st1st<T>,
    _v1DQSSubbUniformSubgridYRowsUniformGrid1st2nd<T>,
    _v1DQSSubbUniformSubgridYRowsUniformGrid2nd1st<T>,
    _v1DQSSubbUniformSubgridYRowsUniformGrid2nd2nd<T>,
    nullptr,
};

}  // namespace ork::df
