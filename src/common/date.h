// Dates as the screens and the archive have them. On screen "dd/mm/yyyy"; on file eight digits, year first
// for the head dates of a document and day first for instalments and withholding.
#pragma once

#include "common/testo.h"

#include <QDate>

#include <optional>

class QDateTime;

namespace bor {

/// The date in a text, which is one only as dd/mm/yyyy (blanks around it do not matter) with a day that
/// exists.
std::optional<QDate> dataValida(QStringView testo);

/// Where day, month and year stand in "dd/mm/yyyy".
inline constexpr Tratto postoGiorno{1, 2};
inline constexpr Tratto postoMese{4, 2};
inline constexpr Tratto postoAnno{7, 4};
inline constexpr Tratto postoAnnoBreve{9, 2};

/// "dd/mm/yyyy".
QString testoData(QDate data);

/// Completes what operators type on leaving a date field: "311215", "31122015", "31/12/15" and "1/2/2015"
/// become dd/mm/yyyy (two-digit years from 80 up belong to the last century). Eight digits get their bars
/// even when there is no such day. Any other text comes back as it is.
QString completaData(QStringView testo);

/// True for a text that has the form of a date, one that is completed on leaving included, and names a day
/// that does not exist.
bool dataInesistente(QStringView testo);

/// `yyyymmdd` cut and joined as "dd/mm/yyyy"; empty when the field holds no digits.
QString dataDaAnnoMeseGiorno(QStringView campo);

/// "dd/mm/yyyy" cut by position into `yyyymmdd`.
QString annoMeseGiorno(QStringView data);

/// `ddmmyyyy` as "dd/mm/yyyy"; empty when its numeric value is 0.
QString dataDaGiornoMeseAnno(QStringView campo);

/// "dd/mm/yyyy" cut by position into `ddmmyyyy`, with no check.
QString giornoMeseAnno(QStringView data);

/// Days since 30/12/1899 in local time with the time of day as fraction, to the millisecond.
double contoGiorni(const QDateTime& momento);

/// Creation stamp of a document: the moment as `contoGiorni` counts it and, below the millisecond, the number
/// of its record, so that no two documents of a company share one.
double timbro(const QDateTime& momento, int record);

} // namespace bor
