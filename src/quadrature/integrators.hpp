// The adaptive integrals, one function for each pair of twins: checks, work, record and reports.
#pragma once

#include <kor/d01.h>

#include "frame/report.hpp"
#include "quadrature/rules.hpp"

namespace kor::quadrature {

// What every routine returns, and what it is asked for.
struct Request {
    double epsabs, epsrel;
    Integer max_num_subint;
    double *result, *abserr;
    KorQuadRecord *record;
};

void integrate_general(const Report &report, Integrand f, double a, double b, const Request &request);
void integrate_oscillating(const Report &report, Integrand f, double a, double b, const Request &request);
void integrate_with_breaks(const Report &report, Integrand f, double a, double b, Integer nbrkpts, const double *brkpts,
                           const Request &request);
void integrate_infinite(const Report &report, Integrand f, Integer boundinf, double bound, const Request &request);
void integrate_trigonometric_weight(const Report &report, Integrand f, double a, double b, double omega,
                                    Integer wt_func, const Request &request);
void integrate_endpoint_weight(const Report &report, Integrand f, double a, double b, double alfa, double beta,
                               Integer wt_func, const Request &request);
void integrate_principal_value(const Report &report, Integrand f, double a, double b, double c, const Request &request);
void integrate_fourier(const Report &report, Integrand f, double a, double omega, Integer wt_func, Integer maxintervals,
                       Integer max_num_subint, double epsabs, double *result, double *abserr,
                       KorQuadIntervalRecord *record);

} // namespace kor::quadrature
